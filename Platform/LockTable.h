// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <istream>

namespace Korvane {

/// A file as the kernel's table of locks names it.
struct LockedFile {
    std::uint64_t deviceMajor = 0;
    std::uint64_t deviceMinor = 0;
    std::uint64_t inode = 0;
};

/// What a table of locks says about one file, the surest answer first to be believed.
enum class LockMatch { None, SameNumberOnAnotherDevice, SameFile };

/// Looks for a lock on `file` that another process than `ownProcess` holds, in the format of /proc/locks (proc(5)).
///
/// Requests that still wait, leases and lines of another form are passed over.
LockMatch findLock(std::istream& table, const LockedFile& file, std::int64_t ownProcess);

} // namespace Korvane
