// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileManager.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// The direct children of a folder as full paths, in the order of the file system. Throws FileError and
/// CancellationError.
std::vector<std::filesystem::path> childrenOf(
    const std::filesystem::path& folder, HiddenFiles hidden, const Cancellation& cancellation);

/// Whether something exists at the path, links followed.
bool isAnythingAt(const std::filesystem::path& path);

/// Whether the host hides this entry of an open folder from people.
bool isHidden(int folder, const char* name) noexcept;

} // namespace Korvane
