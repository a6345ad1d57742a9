// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/EntryStatus.h"

#include "Platform/Files/Retry.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace Korvane {

// A mount point has another device than the folder that holds it; there are no bind mounts here.
int readStatus(int folder, const char* name, Links links, EntryStatus& status) noexcept
{
    struct stat data { };
    const int flags = links == Links::NotFollowed ? AT_SYMLINK_NOFOLLOW : 0;
    const int error
        = errorOf([&] { return *name == '\0' ? fstat(folder, &data) : fstatat(folder, name, &data, flags); });
    if (error != 0)
        return error;
    status.identity = { static_cast<std::uint64_t>(data.st_dev), data.st_ino };
    status.mount = status.identity.device;
    status.isMountRoot = false;
    status.isDirectory = S_ISDIR(data.st_mode);
    status.isLink = S_ISLNK(data.st_mode);
    status.mode = data.st_mode & 07777U;
    status.owner = data.st_uid;
    status.modified = data.st_mtimespec.tv_sec;
    return 0;
}

} // namespace Korvane
