// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileStatus.h"

#include "Platform/Walking/PosixEntries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

std::chrono::sys_time<std::chrono::nanoseconds> modificationDate(const struct ::stat& status)
{
    // nanoseconds explicitly: this library's own clock counts microseconds.
    return std::chrono::sys_time<std::chrono::nanoseconds>(
        std::chrono::nanoseconds(nanosecondsSince1970(status.st_mtimespec.tv_sec, status.st_mtimespec.tv_nsec)));
}

bool isLockedByAnotherProcess(const std::filesystem::path& path, const struct ::stat& status)
{
    if (!S_ISREG(status.st_mode))
        return false;
    const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0)
        return false;
    // fcntl(2): answers with the first lock that would hinder this one, of fcntl and of flock alike.
    struct flock wanted { };
    wanted.l_type = F_WRLCK;
    wanted.l_whence = SEEK_SET;
    const bool isLocked = ::fcntl(file, F_GETLK, &wanted) == 0 && wanted.l_type != F_UNLCK;
    ::close(file);
    return isLocked;
}

} // namespace Korvane
