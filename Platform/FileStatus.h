// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <filesystem>

struct stat;

namespace Korvane {

/// When the contents of the file that `status` describes were last changed, or the nearest date that 64 bits of
/// nanoseconds reach.
std::chrono::sys_time<std::chrono::nanoseconds> modificationDate(const struct ::stat& status);

/// Whether another process holds a lock (flock or fcntl) on the file or folder at `path`, which `status` describes.
///
/// Nothing is locked, changed or waited for by asking. False where the platform does not answer. Any thread.
bool isLockedByAnotherProcess(const std::filesystem::path& path, const struct ::stat& status);

} // namespace Korvane
