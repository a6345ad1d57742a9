// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentRemoval.h"
#include "Tests/Core/Maintenance/MaintenanceFixture.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestTrash.h"

namespace Korvane {

namespace {

/// How the items of a freedesktop.org host go.
class HostAgentRemovalTest : public MaintenanceFixture {
protected:
    std::string calls() const { return readFile(folder() / "calls"); }
    /// A manager of units that writes down what it is asked, and then does this.
    void writeManager(const std::string& script) const
    {
        writeProgram(program("systemctl"), "printf '%s ' \"$@\" >> '" + (folder() / "calls").native() + "'\n" + script);
    }
    bool isInTrash(const std::string& name) { return isInTestTrash(host().environment, name); }
};

} // namespace

TEST_F(HostAgentRemovalTest, AutostartEntryOnlyGoesToTheTrash)
{
    const auto& runner = recordRuns();
    const auto url = home() / ".config/autostart/a.desktop";
    writeFile(url, "[Desktop Entry]\nType=Application\nName=A\nExec=a\n");
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), std::nullopt);
    EXPECT_TRUE(runner.calls().empty());
    EXPECT_TRUE(isInTrash("a.desktop"));
}

TEST_F(HostAgentRemovalTest, UnitIsDisabledAndStoppedBeforeItsFileGoes)
{
    const auto url = makeUnit("backup.service");
    const Sentinel other(unitsFolder() / "other.service");
    writeManager(
        "[ -e '" + url.native() + "' ] && rm '" + unitsFolder().native() + "/default.target.wants/backup.service'");
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), std::nullopt);
    EXPECT_EQ(calls(), "--user disable --now -- backup.service ");
    EXPECT_TRUE(isInTrash("backup.service"));
    EXPECT_EQ(other.difference(), "");
    EXPECT_TRUE(scanAgents().empty());
}

TEST_F(HostAgentRemovalTest, AllInstancesOfATemplateAreStopped)
{
    makeUnit("sync@.service");
    const auto links = unitsFolder() / "default.target.wants";
    std::filesystem::remove(links / "sync@.service");
    for (const char* name : { "sync@home.service", "sync@work.service" })
        std::filesystem::create_symlink(unitsFolder() / "sync@.service", links / name);
    writeManager("exit 0");
    EXPECT_EQ(removeLaunchAgent(agentAt(unitsFolder() / "sync@.service"), host()), std::nullopt);
    EXPECT_EQ(calls(), "--user disable --now -- sync@home.service sync@work.service ");
}

TEST_F(HostAgentRemovalTest, UnitThatCannotBeStoppedGoesAllTheSameAndSaysSo)
{
    const std::string begin = "moved to the Trash, but it may still run until the next login: ";
    auto url = makeUnit("first.service");
    writeManager("echo 'Failed to connect to bus' >&2; exit 1");
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), begin + "Failed to connect to bus");
    EXPECT_TRUE(isInTrash("first.service"));
    std::filesystem::remove(program("systemctl"));
    url = makeUnit("second.service");
    EXPECT_EQ(removeLaunchAgent(agentAt(url), host()), begin + "systemctl is missing");
    EXPECT_TRUE(isInTrash("second.service"));
}

TEST_F(HostAgentRemovalTest, ManagerThatHangsIsEndedByACancelAndTheFileGoesAllTheSame)
{
    const auto url = makeUnit("slow.service");
    const auto agent = agentAt(url);
    writeManager(": > '" + (folder() / "begun").native() + "'; exec sleep 600");
    EXPECT_EQ(removalThatIsCancelled(agent),
        "moved to the Trash, but it may still run until the next login: stopping it was cancelled");
    EXPECT_TRUE(isInTrash("slow.service"));
}

TEST_F(HostAgentRemovalTest, LinkThatDisablingTookAwayIsNoFailure)
{
    const Sentinel target(home() / "project/linked.service");
    makeUnit("linked.service");
    std::filesystem::remove(unitsFolder() / "linked.service");
    std::filesystem::create_symlink(target.path(), unitsFolder() / "linked.service");
    writeManager("rm '" + (unitsFolder() / "linked.service").native() + "'");
    EXPECT_EQ(removeLaunchAgent(agentAt(unitsFolder() / "linked.service"), host()), std::nullopt);
    EXPECT_EQ(target.difference(), "");
}

} // namespace Korvane
