// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Maintenance/MaintenanceFixture.h"

namespace Korvane {

namespace {

/// Tasks on a host that has no interpreter of scripts and does them by its own programs.
class HostMaintenanceTest : public MaintenanceFixture {
protected:
    void install(const std::vector<std::string>& names, const std::string& script = "exit 0") const
    {
        for (const auto& name : names)
            writeProgram(program(name), script);
    }
    std::string missing(MaintenanceTask task)
    {
        return MaintenanceRunner::missingMeans(task, host()).value_or("nothing");
    }
    std::string path(const std::string& name) const { return program(name).native(); }
};

} // namespace

TEST_F(HostMaintenanceTest, MemoryIsFreedByDroppingThePageCacheOnceAllIsWritten)
{
    install({ "pkexec", "sync", "sysctl" });
    const auto& runner = recordRuns();
    EXPECT_EQ(missing(MaintenanceTask::FreeRAM), "nothing");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), std::nullopt);
    EXPECT_EQ(runner.calls(),
        (std::vector<Call>{ { path("sync") },
            { path("pkexec"), "--disable-internal-agent", path("sysctl"), "-q", "vm.drop_caches=1" } }));
}

TEST_F(HostMaintenanceTest, ResolverIsFlushedWithAnAdministratorsRights)
{
    install({ "pkexec", "resolvectl" });
    const auto& runner = recordRuns();
    EXPECT_EQ(failure(MaintenanceTask::FlushDNS), std::nullopt);
    EXPECT_EQ(runner.calls(),
        (std::vector<Call>{ { path("pkexec"), "--disable-internal-agent", path("resolvectl"), "flush-caches" } }));
}

TEST_F(HostMaintenanceTest, SearchIndexIsRebuiltWithoutAnyRights)
{
    using Calls = std::vector<Call>;
    const std::vector<std::pair<std::string, Calls>> expected{
        { "balooctl", { { path("balooctl"), "purge" } } },
        { "balooctl6", { { path("balooctl6"), "purge" } } },
        { "tracker3", { { path("tracker3"), "reset", "--filesystem" }, { path("tracker3"), "daemon", "--start" } } },
        { "localsearch",
            { { path("localsearch"), "reset", "--filesystem" }, { path("localsearch"), "daemon", "--start" } } },
    };
    // Each one that is installed besides takes the place of those before.
    for (const auto& [tool, calls] : expected) {
        install({ tool });
        const auto& runner = recordRuns();
        EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
        EXPECT_EQ(runner.calls(), calls) << tool;
    }
}

TEST_F(HostMaintenanceTest, IndexerIsStartedByItsUnitWhereThereIsAManager)
{
    install({ "localsearch", "systemctl" });
    const auto& runner = recordRuns();
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
    EXPECT_EQ(runner.calls(),
        (std::vector<Call>{ { path("localsearch"), "reset", "--filesystem" },
            { path("systemctl"), "--user", "start", "localsearch-3.service" } }));
}

TEST_F(HostMaintenanceTest, IndexIsRebuiltAlsoWhenTheIndexerDoesNotBeginAtOnce)
{
    install({ "localsearch" }, "[ \"$1\" = reset ] || { echo 'unknown command' >&2; exit 1; }");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
    install({ "systemctl" }, "exit 5");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
    writeFile(program("systemctl"), "#!/no/such/shell\n");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
    install({ "localsearch" }, "echo 'index is busy' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), "The command failed: index is busy");
}

TEST_F(HostMaintenanceTest, IndexOfTheDesktopThatRunsIsRebuilt)
{
    install({ "localsearch", "balooctl6" });
    const auto toolFor = [this](const std::vector<std::string>& desktops) {
        host().environment.currentDesktops = desktops;
        const auto& runner = recordRuns();
        EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
        return runner.calls().front().front();
    };
    EXPECT_EQ(toolFor({ "KDE" }), path("balooctl6"));
    EXPECT_EQ(toolFor({ "neon", "KDE" }), path("balooctl6"));
    EXPECT_EQ(toolFor({ "ubuntu", "GNOME" }), path("localsearch"));
    EXPECT_EQ(toolFor({}), path("localsearch"));
    std::filesystem::remove(program("balooctl6"));
    EXPECT_EQ(toolFor({ "KDE" }), path("localsearch"));
}

TEST_F(HostMaintenanceTest, OnlyAResolverThatIsNotThereHasNothingToFlush)
{
    install({ "resolvectl" });
    const auto saying = [this](const std::string& words) {
        install({ "pkexec" }, "cat >&2 <<'END'\nFailed to flush caches: " + words + "\nEND\nexit 1");
        return failure(MaintenanceTask::FlushDNS).value_or("done");
    };
    for (const char* absence : { "Unit dbus-org.freedesktop.resolve1.service not found.",
             "Unit dbus-org.freedesktop.resolve1.service is masked.",
             "The name org.freedesktop.resolve1 was not provided by any .service files", "The name is not activatable",
             "Could not activate remote peer 'org.freedesktop.resolve1': activation request failed: unknown unit" })
        EXPECT_EQ(saying(absence), "There is nothing to flush: this machine keeps no DNS cache") << absence;
    for (const std::string trouble :
        { "Failed to activate service 'org.freedesktop.resolve1': timed out (service_start_timeout=25000ms)",
            "Could not activate remote peer 'org.freedesktop.resolve1': unit failed" })
        EXPECT_EQ(saying(trouble), "The command failed: Failed to flush caches: " + trouble);
}

TEST_F(HostMaintenanceTest, WhatIsMissingIsNamedAndNothingIsRun)
{
    const auto& runner = recordRuns();
    EXPECT_EQ(missing(MaintenanceTask::FreeRAM), "sync is missing, which frees memory");
    EXPECT_EQ(missing(MaintenanceTask::FlushDNS), "There is nothing to flush: this machine keeps no DNS cache");
    EXPECT_EQ(
        missing(MaintenanceTask::ReindexSpotlight), "No search index is installed (localsearch, tracker3 or balooctl)");
    install({ "sync", "resolvectl" });
    EXPECT_EQ(missing(MaintenanceTask::FreeRAM), "sysctl is missing, which frees memory");
    install({ "sysctl" });
    for (const auto task : { MaintenanceTask::FreeRAM, MaintenanceTask::FlushDNS })
        EXPECT_EQ(missing(task), "pkexec is missing, which asks for an administrator's password");
    for (const auto task : allMaintenanceTasks)
        EXPECT_EQ(failure(task), missing(task));
    EXPECT_TRUE(runner.calls().empty());
}

TEST_F(HostMaintenanceTest, WhatMayNotBeRunIsMissing)
{
    writeFile(program("resolvectl"), "no program");
    std::filesystem::create_directories(program("tracker3"));
    EXPECT_NE(missing(MaintenanceTask::FlushDNS), "nothing");
    EXPECT_NE(missing(MaintenanceTask::ReindexSpotlight), "nothing");
}

TEST_F(HostMaintenanceTest, DismissedMissingAndFailedSayThreeDifferentThings)
{
    install({ "sync", "sysctl", "resolvectl" });
    install({ "pkexec" }, "echo 'Error executing command as another user: Request dismissed' >&2; exit 126");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM),
        "The request for an administrator's password was dismissed; nothing was changed");
    install(
        { "pkexec" }, "echo 'Error executing command as another user: No authentication agent found.' >&2; exit 127");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM),
        "No program that asks for an administrator's password is running (a polkit agent); nothing was changed");
    install({ "pkexec" }, "echo 'sysctl: permission denied on key' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "The command failed: sysctl: permission denied on key");
}

TEST_F(HostMaintenanceTest, OtherFailuresAreToldApartToo)
{
    install({ "sync", "sysctl" });
    install({ "pkexec" }, "printf 'Error executing command as another user: Not authorized\\n\\n' >&2; exit 127");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "An administrator's rights were not given; nothing was changed");
    install({ "pkexec" }, "echo 'Error getting authority: no bus' >&2; exit 127");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM),
        "An administrator's password could not be asked for: Error getting authority: no bus");
    install({ "pkexec" }, "exit 7");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "The command failed with status 7");
    install({ "pkexec" }, "kill -9 $$");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "The command was ended by signal 9");
}

TEST_F(HostMaintenanceTest, StepThatFailsEndsTheTask)
{
    install({ "sync" }, "echo 'disk error' >&2; exit 1");
    install({ "sysctl" });
    install({ "pkexec" }, ": > '" + (folder() / "asked").native() + "'");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "The command failed: disk error");
    EXPECT_FALSE(std::filesystem::exists(folder() / "asked"));
    install({ "tracker3" }, "[ \"$1\" = reset ] || { echo 'no daemon'; exit 3; }");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), "The command failed: no daemon");
}

} // namespace Korvane
