// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileStatus.h"

#include "Platform/LockTable.h"
#include "Platform/Walking/PosixEntries.h"

#include <fstream>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// On these, the device number that a file reports is not the one that the kernel's table of locks shows.
bool hasDeviceNumberOfItsOwn(const std::filesystem::path& path)
{
    constexpr long btrfs = 0x9123683E, overlay = 0x794C7630; // linux/magic.h
    struct statfs volume { };
    return ::statfs(path.c_str(), &volume) == 0
        && (static_cast<long>(volume.f_type) == btrfs || static_cast<long>(volume.f_type) == overlay);
}

} // namespace

std::chrono::sys_time<std::chrono::nanoseconds> modificationDate(const struct ::stat& status)
{
    return std::chrono::sys_time<std::chrono::nanoseconds>(
        std::chrono::nanoseconds(nanosecondsSince1970(status.st_mtim.tv_sec, status.st_mtim.tv_nsec)));
}

bool isLockedByAnotherProcess(const std::filesystem::path& path, const struct ::stat& status)
{
    if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))
        return false;
    std::ifstream table("/proc/locks");
    const LockedFile file{ major(status.st_dev), minor(status.st_dev), status.st_ino };
    switch (findLock(table, file, ::getpid())) {
    case LockMatch::None:
        return false;
    case LockMatch::SameFile:
        return true;
    case LockMatch::SameNumberOnAnotherDevice:
        return hasDeviceNumberOfItsOwn(path);
    }
    return false;
}

} // namespace Korvane
