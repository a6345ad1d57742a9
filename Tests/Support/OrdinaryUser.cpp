// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/OrdinaryUser.h"

#include "Tests/Support/ChildProcess.h"

#include <cerrno>
#include <grp.h>
#include <system_error>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr uid_t nobody = 65534;
constexpr gid_t nobodyGroup = 65534;

bool dropRights()
{
    if (::geteuid() != 0)
        return true;
    return ::setgroups(0, nullptr) == 0 && ::setgid(nobodyGroup) == 0 && ::setuid(nobody) == 0 && ::geteuid() == nobody;
}

} // namespace

std::string runAsOrdinaryUser(const std::function<std::string()>& work)
{
    return runInChild([&] { return dropRights() ? work() : "exception: the child could not drop root's rights"; });
}

void giveToOrdinaryUser(const std::filesystem::path& folder)
{
    if (::geteuid() != 0)
        return;
    const auto give = [](const std::filesystem::path& path) {
        if (::lchown(path.c_str(), nobody, nobodyGroup) != 0)
            throw std::system_error(errno, std::generic_category(), path.native());
    };
    give(folder);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        give(entry.path());
}

} // namespace Korvane
