// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/PrivateMounts.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/TemporaryFolder.h"

#include <cerrno>
#include <iostream>
#include <sched.h>
#include <sys/mount.h>
#include <system_error>
#include <unistd.h>

namespace Korvane {

namespace {

void require(int result, const std::string& what)
{
    if (result != 0)
        throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

void leaveSharedMounts()
{
    const auto user = ::geteuid();
    const auto group = ::getegid();
    require(::unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER), "unshare");
    if (user != 0) {
        // Only who is root in a user namespace of their own may mount there.
        writeFile("/proc/self/setgroups", "deny");
        writeFile("/proc/self/uid_map", "0 " + std::to_string(user) + " 1\n");
        writeFile("/proc/self/gid_map", "0 " + std::to_string(group) + " 1\n");
    }
    require(::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "make mounts private");
}

bool canMountPrivately()
{
    const TemporaryFolder folder;
    const auto answer = runWithPrivateMounts([&] {
        mountMemory(folder.path());
        return std::string("mounted");
    });
    if (answer == "mounted")
        return true;
    std::cerr << "Private mounts are not allowed on this machine (" << answer << "); checking without them.\n";
    return false;
}

std::string runWithPrivateMounts(const std::function<std::string()>& work)
{
    return runInChild([&] {
        leaveSharedMounts();
        return work();
    });
}

void mountMemory(const std::filesystem::path& folder, const std::string& options)
{
    require(::mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()), "mount " + folder.native());
}

void mountBound(const std::filesystem::path& source, const std::filesystem::path& target)
{
    require(::mount(source.c_str(), target.c_str(), nullptr, MS_BIND, nullptr), "bind " + target.native());
}

void makeMountReadOnly(const std::filesystem::path& target)
{
    require(::mount("none", target.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr),
        "remount " + target.native());
}

} // namespace Korvane
