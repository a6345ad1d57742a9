// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Environment.h"

#include "Tests/Support/EnvironmentVariable.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

namespace Korvane {
namespace {

std::string homeInPasswordDatabase()
{
    const passwd* entry = ::getpwuid(::getuid());
    return entry != nullptr ? entry->pw_dir : "/nonexistent";
}

TEST(Environment, TakesAnAbsoluteHomeAsItStands)
{
    const EnvironmentVariable home("HOME", "/somewhere/that is not\xFF");
    EXPECT_EQ(Environment::current().home, "/somewhere/that is not\xFF");
}

TEST(Environment, TakesTheRootFolderAsAHomeWhenToldSo)
{
    const EnvironmentVariable home("HOME", "/");
    EXPECT_EQ(Environment::current().home, "/");
    EXPECT_EQ(Environment::current().cacheHome(), Environment::current().xdgCacheHome.value_or("/.cache"));
}

TEST(Environment, DropsTrailingSlashesSoThatEachFolderHasAName)
{
    const EnvironmentVariable home("HOME", "/home/someone//");
    const EnvironmentVariable root("XDG_CACHE_HOME", "///");
    EXPECT_EQ(Environment::current().home.native(), "/home/someone");
    EXPECT_EQ(Environment::current().xdgCacheHome->native(), "/");
}

TEST(Environment, AsksThePasswordDatabaseWhenHomeIsMissingOrRelative)
{
    for (const auto& value : { std::optional<std::string>(), std::optional<std::string>("relative/home"),
             std::optional<std::string>(""), std::optional<std::string>("~") }) {
        const EnvironmentVariable home("HOME", value);
        EXPECT_EQ(Environment::current().home, homeInPasswordDatabase());
    }
}

TEST(Environment, OfAUserWhomNobodyKnowsHasAnAbsoluteHomeWhereNothingIs)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root's right to become another user";
    const auto home = runAsOrdinaryUser([] {
        constexpr uid_t unknownUser = 65534;
        ::unsetenv("HOME");
        return ::getuid() == unknownUser ? Environment::current().home.native() : std::string("no other user");
    });
    EXPECT_TRUE(std::filesystem::path(home).is_absolute()) << home;
    EXPECT_FALSE(std::filesystem::exists(home)) << home;
}

TEST(Environment, TakesTheBaseDirectoriesOnlyWhenAbsolute)
{
    const EnvironmentVariable cache("XDG_CACHE_HOME", "/cache");
    const EnvironmentVariable config("XDG_CONFIG_HOME", "config");
    const EnvironmentVariable data("XDG_DATA_HOME", std::nullopt);
    const EnvironmentVariable state("XDG_STATE_HOME", "/state");
    const EnvironmentVariable home("HOME", "/h");
    const auto environment = Environment::current();
    EXPECT_EQ(environment.xdgCacheHome, "/cache");
    EXPECT_EQ(environment.cacheHome(), "/cache");
    EXPECT_EQ(environment.xdgConfigHome, std::nullopt);
    EXPECT_EQ(environment.configHome(), "/h/.config");
    EXPECT_EQ(environment.xdgDataHome, std::nullopt);
    EXPECT_EQ(environment.dataHome(), "/h/.local/share");
    EXPECT_EQ(environment.xdgStateHome, "/state");
    EXPECT_EQ(environment.stateHome(), "/state");
}

TEST(Environment, FindsTheApplicationsOfAllUsersWhereThePlatformHasThem)
{
    EXPECT_EQ(Environment::current().applicationsDirectory, "/Applications");
}

TEST(Environment, FindsWhatMaintenanceNeedsWhereThePlatformHasIt)
{
    const auto environment = Environment::current();
    EXPECT_EQ(environment.scriptInterpreter, "/usr/bin/osascript");
    EXPECT_EQ(environment.serviceManager, "/bin/launchctl");
    EXPECT_EQ(environment.machineLibrary, "/Library");
    // What stands here runs with an administrator's rights.
    EXPECT_EQ(
        environment.programFolders, (std::vector<std::filesystem::path>{ "/usr/bin", "/bin", "/usr/sbin", "/sbin" }));
    EXPECT_EQ(environment.userId, ::getuid());
}

TEST(Environment, TellsTheDesktopsThatRun)
{
    using Names = std::vector<std::string>;
    {
        const EnvironmentVariable desktops("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
        EXPECT_EQ(Environment::current().currentDesktops, (Names{ "ubuntu", "GNOME" }));
    }
    const EnvironmentVariable none("XDG_CURRENT_DESKTOP", std::nullopt);
    EXPECT_EQ(Environment::current().currentDesktops, Names());
}

TEST(Environment, TakesTheAbsoluteOnesOfTheSharedSettingsFolders)
{
    using Paths = std::vector<std::filesystem::path>;
    {
        const EnvironmentVariable folders("XDG_CONFIG_DIRS", "/a/:relative::/b c\xff:/");
        EXPECT_EQ(Environment::current().xdgConfigDirs, (Paths{ "/a", "/b c\xff", "/" }));
    }
    for (const auto& value :
        { std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("relative:") }) {
        const EnvironmentVariable folders("XDG_CONFIG_DIRS", value);
        EXPECT_EQ(Environment::current().xdgConfigDirs, Paths{ "/etc/xdg" });
    }
}

TEST(Environment, LooksForTheToolsOfDevicesInTheseFoldersAndNoOthers)
{
    const EnvironmentVariable path("PATH", "/elsewhere:/usr/local/sbin");
    std::vector<std::filesystem::path> expected{ "/opt/homebrew/bin", "/usr/local/bin" };
#ifndef __APPLE__
    expected.push_back("/usr/bin");
#endif
    EXPECT_EQ(Environment::current().deviceToolFolders, expected);
}

#ifndef __APPLE__
TEST(Environment, TakesTheTemporaryDirectoryFromItsVariableOnlyWhenAbsolute)
{
    {
        const EnvironmentVariable folder("TMPDIR", "/var/tmp/");
        EXPECT_EQ(Environment::current().temporaryDirectory.native(), "/var/tmp");
    }
    for (const auto& value :
        { std::optional<std::string>(), std::optional<std::string>("tmp"), std::optional<std::string>("") }) {
        const EnvironmentVariable folder("TMPDIR", value);
        EXPECT_EQ(Environment::current().temporaryDirectory, "/tmp");
    }
}
#endif

TEST(Environment, InAFolderKeepsEverythingInsideIt)
{
    const TemporaryFolder folder;
    const EnvironmentVariable cache("XDG_CACHE_HOME", "/elsewhere");
    const auto environment = Environment::inFolder(folder.path());
    EXPECT_EQ(environment.home, folder / "home");
    EXPECT_EQ(environment.temporaryDirectory, folder / "tmp");
    EXPECT_EQ(environment.cacheHome(), folder / "home/.cache");
    EXPECT_EQ(environment.configHome(), folder / "home/.config");
    EXPECT_EQ(environment.dataHome(), folder / "home/.local/share");
    EXPECT_EQ(environment.stateHome(), folder / "home/.local/state");
    EXPECT_EQ(environment.applicationsDirectory, folder / "Applications");
    EXPECT_EQ(environment.scriptInterpreter, folder / "bin/osascript");
    EXPECT_EQ(environment.serviceManager, folder / "bin/launchctl");
    EXPECT_EQ(environment.machineLibrary, folder / "Library");
    EXPECT_EQ(environment.programFolders, (std::vector<std::filesystem::path>{ folder / "bin" }));
    EXPECT_EQ(environment.xdgConfigDirs, (std::vector<std::filesystem::path>{ folder / "xdg" }));
    for (const auto& tools : environment.deviceToolFolders)
        EXPECT_TRUE(tools.native().starts_with(folder.path().native() + "/")) << tools;
    EXPECT_EQ(environment.deviceToolFolders[0], folder / "homebrew/bin");
    EXPECT_EQ(environment.deviceToolFolders[1], folder / "local/bin");
    EXPECT_EQ(environment.systemReleaseFiles, (std::vector<std::filesystem::path>{ folder / "os-release" }));
    EXPECT_EQ(environment.downloads(), folder / "home/Downloads");
    EXPECT_TRUE(environment.currentDesktops.empty());
    EXPECT_EQ(environment.userId, ::getuid());
    EXPECT_TRUE(std::filesystem::is_directory(environment.home));
    EXPECT_TRUE(std::filesystem::is_directory(environment.temporaryDirectory));
}

} // namespace
} // namespace Korvane
