// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <cstdint>
#include <filesystem>

namespace Korvane {

/// The bytes that a file, or every regular file of a folder tree, occupies on its volume (allocated, not logical).
///
/// 0 when nothing exists at `path`; links are measured as links and never followed; hidden files and packages
/// count; every name of a file with several hard links counts; what cannot be read adds nothing; what is renamed
/// while a long folder is listed may count twice or not at all, as only remembering every name would tell; a sum that
/// does not fit stops the program. Reads folders on the shared pool of readers and blocks the caller until done.
/// Throws CancellationError when cancelled. Any thread but the main one.
std::int64_t totalAllocatedSize(const std::filesystem::path& path, const Cancellation& cancellation = {});

} // namespace Korvane
