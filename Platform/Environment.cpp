// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Environment.h"

#include "Platform/TemporaryDirectory.h"
#include "Platform/TrailingSlashes.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sstream>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace Korvane {

namespace {

/// Where a person without any home has theirs: absolute, and nothing is ever there to be found or removed.
constexpr const char* noHome = "/nonexistent";

std::filesystem::path homeInPasswordDatabase()
{
    std::vector<char> buffer(4096);
    passwd entry{};
    passwd* found = nullptr;
    constexpr std::size_t largestEntry = 1 << 20;
    while (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE
        && buffer.size() < largestEntry)
        buffer.resize(buffer.size() * 2);
    if (found == nullptr || found->pw_dir == nullptr || found->pw_dir[0] != '/')
        return noHome;
    return withoutTrailingSlashes(found->pw_dir);
}

std::optional<std::filesystem::path> baseDirectory(const char* name)
{
    auto path = absolutePathVariable(name);
    if (path.empty())
        return std::nullopt;
    return path;
}

/// What a variable names with colons between.
std::vector<std::string> namesIn(const char* variable)
{
    const char* value = std::getenv(variable);
    std::istringstream list(value != nullptr ? value : "");
    std::vector<std::string> names;
    for (std::string name; std::getline(list, name, ':');)
        names.push_back(name);
    return names;
}

/// The absolute ones among the paths that a variable names.
std::vector<std::filesystem::path> absolutePathsIn(const char* variable)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& path : namesIn(variable)) {
        if (path.starts_with('/'))
            paths.emplace_back(withoutTrailingSlashes(path));
    }
    return paths;
}

} // namespace

std::filesystem::path absolutePathVariable(const char* name)
{
    const char* value = std::getenv(name);
    if (value == nullptr || value[0] != '/')
        return {};
    return withoutTrailingSlashes(value);
}

Environment Environment::current()
{
    Environment environment;
    environment.home = absolutePathVariable("HOME");
    if (environment.home.empty())
        environment.home = homeInPasswordDatabase();
    environment.temporaryDirectory = systemTemporaryDirectory();
    environment.xdgCacheHome = baseDirectory("XDG_CACHE_HOME");
    environment.xdgConfigHome = baseDirectory("XDG_CONFIG_HOME");
    environment.xdgDataHome = baseDirectory("XDG_DATA_HOME");
    environment.xdgStateHome = baseDirectory("XDG_STATE_HOME");
    if (auto folders = absolutePathsIn("XDG_CONFIG_DIRS"); !folders.empty())
        environment.xdgConfigDirs = std::move(folders);
    environment.currentDesktops = namesIn("XDG_CURRENT_DESKTOP");
    environment.userId = ::getuid();
    for (auto& folder : systemDeviceToolFolders("/usr"))
        environment.deviceToolFolders.push_back(std::move(folder));
    return environment;
}

Environment Environment::inFolder(const std::filesystem::path& folder)
{
    Environment environment;
    environment.home = folder / "home";
    environment.temporaryDirectory = folder / "tmp";
    environment.applicationsDirectory = folder / "Applications";
    environment.scriptInterpreter = folder / "bin/osascript";
    environment.serviceManager = folder / "bin/launchctl";
    environment.machineLibrary = folder / "Library";
    environment.programFolders = { folder / "bin" };
    environment.xdgConfigDirs = { folder / "xdg" };
    environment.deviceToolFolders = { folder / "homebrew/bin", folder / "local/bin" };
    for (auto& own : systemDeviceToolFolders(folder))
        environment.deviceToolFolders.push_back(std::move(own));
    environment.systemReleaseFiles = { folder / "os-release" };
    environment.userId = ::getuid();
    std::filesystem::create_directories(environment.home);
    std::filesystem::create_directories(environment.temporaryDirectory);
    return environment;
}

std::filesystem::path Environment::cacheHome() const { return xdgCacheHome.value_or(home / ".cache"); }

std::filesystem::path Environment::configHome() const { return xdgConfigHome.value_or(home / ".config"); }

std::filesystem::path Environment::dataHome() const { return xdgDataHome.value_or(home / ".local/share"); }

std::filesystem::path Environment::stateHome() const { return xdgStateHome.value_or(home / ".local/state"); }

} // namespace Korvane
