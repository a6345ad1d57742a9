// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

namespace Korvane {

/// What the rules need to know of one entry beside its size; links are not followed.
struct FileAttributes {
    bool exists = false;
    bool isDirectory = false;
    bool isLink = false;
    bool isOwnedByCurrentUser = false;
    bool isSharedSticky = false; ///< A folder with the sticky bit that others may write to, like "/tmp".
    bool isSocketOrPipe = false;
    bool isLocked = false;       ///< Another process holds a lock on the file (flock or fcntl).
    std::chrono::sys_time<std::chrono::nanoseconds> contentModificationDate {};
};

/// Reads the attributes of `path` itself; all false when it does not exist or cannot be read. Any thread.
FileAttributes attributesOfItem(const std::filesystem::path& path);

} // namespace Korvane
