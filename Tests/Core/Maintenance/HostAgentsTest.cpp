// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Maintenance/MaintenanceFixture.h"

#include <algorithm>

namespace Korvane {

namespace {

using Domain = LaunchAgent::Domain;
using Kind = LaunchAgent::Kind;
using Labels = std::vector<std::string>;

/// What a freedesktop.org host starts besides the property lists.
class HostAgentsTest : public MaintenanceFixture {
protected:
    std::filesystem::path own(const std::string& name) const { return home() / ".config/autostart" / name; }
    std::filesystem::path shared(const std::string& name) const { return folder() / "xdg/autostart" / name; }

    static std::string entry(const std::string& name, const std::string& more = "Exec=/bin/program --now\n")
    {
        return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + more;
    }
};

} // namespace

TEST_F(HostAgentsTest, AutostartEntriesOfTheUserAndOfAllUsersAreListed)
{
    writeFile(own("own.desktop"), entry("Own"));
    writeFile(shared("shared.desktop"), entry("Shared", "Exec=env A=b \"/opt/a b/run\" %U\n"));
    const auto mine = agentAt(own("own.desktop"));
    EXPECT_EQ(mine.label, "Own");
    EXPECT_EQ(mine.program, "/bin/program");
    EXPECT_EQ(mine.domain, Domain::User);
    EXPECT_EQ(mine.kind, Kind::Autostart);
    const auto other = agentAt(shared("shared.desktop"));
    EXPECT_EQ(other.program, "/opt/a b/run");
    EXPECT_EQ(other.domain, Domain::SystemAgents);
    EXPECT_FALSE(other.removable());
}

TEST_F(HostAgentsTest, EntryOfTheUserTakesThePlaceOfOneOfAllUsers)
{
    writeFile(shared("same.desktop"), entry("Of all"));
    writeFile(own("same.desktop"), entry("Of the user"));
    EXPECT_EQ(labels(), Labels{ "Of the user" });
    EXPECT_TRUE(scanAgents().front().removable());
}

TEST_F(HostAgentsTest, HiddenEntryIsOffAndHidesThatOfAllUsers)
{
    writeFile(shared("same.desktop"), entry("Of all"));
    writeFile(own("same.desktop"), entry("Off", "Exec=/bin/x\nHidden=true\n"));
    writeFile(shared("off.desktop"), entry("Off too", "Hidden=true\n"));
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, FirstOfTheSharedFoldersCounts)
{
    host().environment.xdgConfigDirs = { folder() / "first", folder() / "second" };
    writeFile(folder() / "first/autostart/same.desktop", entry("First"));
    writeFile(folder() / "second/autostart/same.desktop", entry("Second"));
    writeFile(folder() / "second/autostart/more.desktop", entry("More"));
    EXPECT_EQ(labels(), (Labels{ "First", "More" }));
}

TEST_F(HostAgentsTest, WhatIsNoEntryOfAnApplicationIsNotListed)
{
    writeFile(own("link.desktop"), "[Desktop Entry]\nType=Link\nName=Link\n");
    writeFile(own("empty.desktop"), "");
    writeFile(own("note.txt"), entry("Note"));
    writeFile(own("inner/deep.desktop"), entry("Deep"));
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, EntryTooLargeToBeReadIsListedByItsName)
{
    writeFile(own("huge.desktop"), entry("Huge") + std::string(2'000'000, '#'));
    EXPECT_EQ(labels(), Labels{ "huge" });
}

TEST_F(HostAgentsTest, LinkToNothingTurnsAnEntryOfAllUsersOff)
{
    writeFile(shared("off.desktop"), entry("Off"));
    std::filesystem::create_directories(own("off.desktop").parent_path());
    std::filesystem::create_symlink("/dev/null", own("off.desktop"));
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, EntryWithoutANameOrACommandIsStillListed)
{
    writeFile(own("bare.desktop"), "[Desktop Entry]\nType=Application\n");
    const auto agent = agentAt(own("bare.desktop"));
    EXPECT_EQ(agent.label, "bare");
    EXPECT_EQ(agent.program, std::nullopt);
}

TEST_F(HostAgentsTest, EnabledUnitsOfTheUserAreListed)
{
    const auto service = makeUnit("backup.service",
        "[Unit]\nExecStart=/no\n[Service]\nType=simple\nExecStart=-@\"/opt/a "
        "b/run\" --daily\nExecStart=/bin/second\n");
    const auto timer = makeUnit("backup.timer", "[Timer]\nOnCalendar=daily\n");
    writeFile(unitsFolder() / "idle.service", "[Service]\nExecStart=/bin/idle\n");
    EXPECT_EQ(labels(), (Labels{ "backup.service", "backup.timer" }));
    const auto agent = agentAt(service);
    EXPECT_EQ(agent.program, "/opt/a b/run");
    EXPECT_EQ(agent.domain, Domain::User);
    EXPECT_EQ(agent.kind, Kind::SystemdUnit);
    EXPECT_TRUE(agent.removable());
    EXPECT_EQ(agentAt(timer).program, std::nullopt);
}

TEST_F(HostAgentsTest, UnitsOfTheSystemAreNotTheUsersOwn)
{
    std::filesystem::create_directories(unitsFolder() / "default.target.wants");
    std::filesystem::create_symlink(
        "/usr/lib/systemd/user/vendor.service", unitsFolder() / "default.target.wants/vendor.service");
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, MaskedUnitsAndFoldersAndOddNamesAreNoUnits)
{
    makeUnit("masked.service");
    std::filesystem::remove(unitsFolder() / "masked.service");
    std::filesystem::create_symlink("/dev/null", unitsFolder() / "masked.service");
    makeUnit("empty.service", "");
    makeUnit("-option.service");
    makeUnit("a b.service");
    makeUnit("notes.txt");
    std::filesystem::create_directories(unitsFolder() / "folder.service");
    std::filesystem::create_symlink("../folder.service", unitsFolder() / "default.target.wants/folder.service");
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, TemplatesAliasesAndLinkedUnitsAreEnabledTheirOwnWay)
{
    writeFile(unitsFolder() / "sync@.service", "[Service]\nExecStart=/bin/sync-it %i\n");
    std::filesystem::create_directories(unitsFolder() / "default.target.requires");
    std::filesystem::create_symlink(
        unitsFolder() / "sync@.service", unitsFolder() / "default.target.requires/sync@home.service");
    writeFile(unitsFolder() / "real.service", "[Service]\nExecStart=/bin/real\n");
    std::filesystem::create_symlink("real.service", unitsFolder() / "alias.service");
    writeFile(home() / "project/linked.service", "[Service]\nExecStart=/bin/linked\n");
    std::filesystem::create_symlink(home() / "project/linked.service", unitsFolder() / "linked.service");
    std::filesystem::create_symlink(
        home() / "project/linked.service", unitsFolder() / "default.target.requires/linked.service");
    EXPECT_EQ(labels(), (Labels{ "linked.service", "real.service", "sync@.service" }));
    EXPECT_EQ(agentAt(unitsFolder() / "sync@.service").program, "/bin/sync-it");
}

TEST_F(HostAgentsTest, AliasEnablesAUnitWhereverThatLies)
{
    // As "systemctl --user enable" links an installed unit and one outside the folders, each by its Alias= alone.
    const auto data = home() / ".local/share/systemd/user";
    writeFile(data / "real.service", "[Service]\nExecStart=/bin/real\n");
    writeFile(home() / "proj/lk.service", "[Service]\nExecStart=/bin/lk\n");
    std::filesystem::create_directories(unitsFolder());
    std::filesystem::create_symlink(data / "real.service", unitsFolder() / "al.service");
    std::filesystem::create_symlink(home() / "proj/lk.service", unitsFolder() / "lk.service");
    std::filesystem::create_symlink(home() / "proj/lk.service", unitsFolder() / "al3.service");
    std::filesystem::create_symlink("/usr/lib/systemd/user/vendor.service", unitsFolder() / "al4.service");
    EXPECT_EQ(labels(), (Labels{ "lk.service", "real.service" }));
    EXPECT_EQ(agentAt(unitsFolder() / "lk.service").program, "/bin/lk");
    EXPECT_EQ(agentAt(data / "real.service").program, "/bin/real");
}

TEST_F(HostAgentsTest, LinkToADeviceEnablesNothing)
{
    writeFile(unitsFolder() / "null", "[Service]\nExecStart=/bin/x\n");
    std::filesystem::create_symlink("/dev/null", unitsFolder() / "masked.service");
    EXPECT_EQ(labels(), Labels());
}

TEST_F(HostAgentsTest, UnitInTheDataFolderIsTheUsersOwnToo)
{
    const auto data = home() / ".local/share/systemd/user";
    writeFile(data / "installed.service", "[Service]\nExecStart=/bin/installed\n");
    writeFile(data / "both.service", "[Service]\nExecStart=/bin/lower\n");
    std::filesystem::create_directories(unitsFolder() / "default.target.wants");
    std::filesystem::create_symlink(
        data / "installed.service", unitsFolder() / "default.target.wants/installed.service");
    makeUnit("both.service", "[Service]\nExecStart=/bin/upper\n");
    EXPECT_EQ(labels(), (Labels{ "both.service", "installed.service" }));
    EXPECT_EQ(agentAt(unitsFolder() / "both.service").program, "/bin/upper");
}

TEST_F(HostAgentsTest, AllKindsStandAmongEachOtherByLabel)
{
    writeFile(agentsFolder() / "x.plist", labelled("m-list"));
    writeFile(own("a.desktop"), entry("A entry"));
    makeUnit("z.service");
    EXPECT_EQ(labels(), (Labels{ "A entry", "m-list", "z.service" }));
}

TEST_F(HostAgentsTest, ThousandsOfLargeEntriesDoNotStallAScan)
{
    const auto large = entry("Large") + std::string(200'000, '#');
    for (int position = 0; position < 1000; ++position)
        writeFile(own("large-" + std::to_string(position) + ".desktop"), large);
    writeFile(own("small.desktop"), entry("Small"));
    const auto found = labels();
    EXPECT_EQ(found.size(), 1001U);
    EXPECT_EQ(std::count(found.begin(), found.end(), "Small"), 1);
    EXPECT_LE(std::count(found.begin(), found.end(), "Large"), 32 * 1024 * 1024 / 200'000);
}

} // namespace Korvane
