// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/EnterRoot.h"

#include "Tests/Support/PrivateMounts.h"

#include <iostream>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>

namespace Korvane {
namespace {

/// The old root is left behind for good: no path and no ".." leads back to it.
bool pivotInto(const std::filesystem::path& folder)
{
    try {
        leaveSharedMounts();
        mountBound(folder, folder);
    } catch (const std::system_error& error) {
        std::cerr << "No private mounts: " << error.what() << '\n';
        return false;
    }
    return ::chdir(folder.c_str()) == 0 && ::syscall(SYS_pivot_root, ".", ".") == 0 && ::umount2(".", MNT_DETACH) == 0
        && ::chdir("/") == 0;
}

} // namespace

bool enterRoot(const std::filesystem::path& folder)
{
    return pivotInto(folder) || (::chroot(folder.c_str()) == 0 && ::chdir("/") == 0);
}

} // namespace Korvane
