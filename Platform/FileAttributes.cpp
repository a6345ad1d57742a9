// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileAttributes.h"

#include "Platform/FileStatus.h"

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

FileAttributes attributesOfItem(const std::filesystem::path& path)
{
    FileAttributes attributes;
    struct stat status { };
    if (::lstat(path.c_str(), &status) != 0)
        return attributes;
    attributes.exists = true;
    attributes.isDirectory = S_ISDIR(status.st_mode);
    attributes.isLink = S_ISLNK(status.st_mode);
    attributes.isOwnedByCurrentUser = status.st_uid == ::geteuid();
    attributes.isSharedSticky
        = attributes.isDirectory && (status.st_mode & S_ISVTX) != 0 && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    attributes.isSocketOrPipe = S_ISSOCK(status.st_mode) || S_ISFIFO(status.st_mode);
    attributes.isLocked = isLockedByAnotherProcess(path, status);
    attributes.contentModificationDate = modificationDate(status);
    return attributes;
}

} // namespace Korvane
