// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/EntryStatus.h"

#include "Platform/Files/Retry.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace Korvane {

int readStatus(int folder, const char* name, Links links, EntryStatus& status) noexcept
{
    const unsigned wanted = STATX_TYPE | STATX_MODE | STATX_UID | STATX_INO | STATX_MTIME | STATX_MNT_ID;
    const int flags = AT_EMPTY_PATH | AT_NO_AUTOMOUNT | (links == Links::NotFollowed ? AT_SYMLINK_NOFOLLOW : 0);
    struct statx data { };
    if (const int error = errorOf([&] { return statx(folder, name, flags, wanted, &data); }))
        return error;
    status.identity = { makedev(data.stx_dev_major, data.stx_dev_minor), data.stx_ino };
    status.mount = (data.stx_mask & STATX_MNT_ID) != 0 ? data.stx_mnt_id : status.identity.device;
    status.isMountRoot = (data.stx_attributes & data.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT) != 0;
    status.isDirectory = S_ISDIR(data.stx_mode);
    status.isLink = S_ISLNK(data.stx_mode);
    status.mode = data.stx_mode & 07777U;
    status.owner = data.stx_uid;
    status.modified = data.stx_mtime.tv_sec;
    return 0;
}

} // namespace Korvane
