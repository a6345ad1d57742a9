// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace Korvane {

/// What makes an entry this one and no other, however it is reached.
struct EntryIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    bool operator==(const EntryIdentity&) const = default;
};

/// What removing needs to know of one entry.
struct EntryStatus {
    EntryIdentity identity;
    std::uint64_t mount = 0; ///< The mount it was reached through; the device where the system does not tell.
    bool isMountRoot = false; ///< A volume, or a part of one, is mounted exactly here.
    bool isDirectory = false;
    bool isLink = false;
    std::uint32_t mode = 0; ///< Permission bits with set-id and sticky bits.
    std::uint32_t owner = 0; ///< User id.
    std::int64_t modified = 0; ///< Last change of the content, seconds since 1970.

    /// A folder with the sticky bit that everybody may write to, like "/tmp".
    bool isSharedSticky() const noexcept { return isDirectory && (mode & 01000U) != 0 && (mode & 0022U) != 0; }

    /// Whether going from this folder to `child`, which it holds, leaves the mount this folder is on.
    bool leadsOffMountTo(const EntryStatus& child) const noexcept { return child.isMountRoot || child.mount != mount; }
};

enum class Links { Followed, NotFollowed };

/// Reads the status of `name` in the folder `folder`, or of `folder` itself when `name` is empty. 0 or errno.
int readStatus(int folder, const char* name, Links links, EntryStatus& status) noexcept;

} // namespace Korvane
