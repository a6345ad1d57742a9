// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/MaintenanceReports.h"
#include "CLI/Program.h"
#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/StandInProgram.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"

#include <algorithm>

namespace Korvane {

namespace {

/// Maintenance and background items on a machine of the test's own: the real program would touch this one.
class ProgramMaintenanceTest : public ProgramFixture {
protected:
    ExitStatus runHere(const std::vector<std::string>& arguments, const Cancellation& cancellation = {})
    {
        Program program(m_test.host, cancellation);
        return ProgramFixture::runHere(program, arguments);
    }

    /// Runs a command that is cancelled once the script that writeHanging made runs.
    ExitStatus runCancelled(const std::vector<std::string>& arguments)
    {
        return ProgramFixture::runCancelled(m_test.host, arguments, folder / "begun");
    }
    void writeHanging(const std::string& name) const
    {
        writeProgram(folder / "bin" / name, ": > '" + (folder / "begun").native() + "'; exec sleep 600");
    }

    void writeInterpreter(const std::string& script) const { writeProgram(folder / "bin/osascript", script); }
    std::filesystem::path agent(const std::string& name) const { return home() / "Library/LaunchAgents" / name; }
    std::filesystem::path daemon(const std::string& name) const { return folder / "Library/LaunchDaemons" / name; }

    /// A property list with this label that starts this program.
    static void makeList(const std::filesystem::path& file, const std::string& label, const std::string& program)
    {
        writeFile(file,
            "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>Label</key><string>" + label
                + "</string><key>Program</key><string>" + program + "</string></dict></plist>");
    }

    QJsonArray array() const { return QJsonDocument::fromJson(QByteArray::fromStdString(output)).array(); }
    bool prints(const std::string& part) const { return output.find(part) != std::string::npos; }
    bool isInTrash(const std::string& name) const { return isInTestTrash(m_test.host.environment, name); }

private:
    TestHost m_test = makeTestHost(folder);
};

} // namespace

TEST_F(ProgramMaintenanceTest, TasksAreListedWithWhatIsMissing)
{
    EXPECT_EQ(runHere({ "maintenance" }), ExitStatus::Done);
    for (const char* part : { "freeRAM", "Flush DNS Cache", "Rebuild the search index from scratch" })
        EXPECT_TRUE(prints(part)) << output;
#ifndef __APPLE__
    EXPECT_TRUE(prints("not here: No search index is installed")) << output;
#endif
    writeInterpreter("exit 0");
    EXPECT_EQ(runHere({ "maintenance", "list" }), ExitStatus::Done);
    EXPECT_FALSE(prints("not here")) << output;
    EXPECT_EQ(runHere({ "maintenance", "list", "--json" }), ExitStatus::Done);
    ASSERT_EQ(array().size(), 3);
    EXPECT_EQ(text(array()[1].toObject()["task"]), "flushDNS");
    EXPECT_EQ(text(array()[1].toObject()["title"]), "Flush DNS Cache");
    EXPECT_TRUE(array()[1].toObject()["missing"].isNull());
}

TEST_F(ProgramMaintenanceTest, TaskThatIsDoneSaysSo)
{
    writeInterpreter("[ \"$2\" = 'do shell script \"/usr/sbin/purge\" with administrator privileges' ]");
    EXPECT_EQ(runHere({ "maintenance", "run", "freeRAM" }), ExitStatus::Done);
    EXPECT_EQ(output, "Free Up RAM: done\n");
    EXPECT_EQ(errors, "");
    EXPECT_EQ(runHere({ "maintenance", "run", "freeRAM", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "{\"task\":\"freeRAM\",\"done\":true,\"message\":null}\n");
}

TEST_F(ProgramMaintenanceTest, TaskThatFailsSaysWhatTheSystemSaid)
{
    writeInterpreter("echo ' User canceled. (-128)' >&2; exit 1");
    EXPECT_EQ(runHere({ "maintenance", "run", "flushDNS" }), ExitStatus::Failed);
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "korvane-cli: Flush DNS Cache: User canceled. (-128)\n");
    EXPECT_EQ(runHere({ "maintenance", "run", "flushDNS", "--json" }), ExitStatus::Failed);
    EXPECT_EQ(output, "{\"task\":\"flushDNS\",\"done\":false,\"message\":\"User canceled. (-128)\"}\n");
    writeInterpreter("exit 1");
    EXPECT_EQ(runHere({ "maintenance", "run", "flushDNS" }), ExitStatus::Failed);
    EXPECT_EQ(errors, "korvane-cli: Flush DNS Cache: failed\n");
    writeFile(folder / "bin/osascript", "no program");
    std::filesystem::permissions(folder / "bin/osascript", std::filesystem::perms(0644));
    EXPECT_EQ(runHere({ "maintenance", "run", "flushDNS" }), ExitStatus::Failed);
    EXPECT_NE(errors.find((folder / "bin/osascript").string()), std::string::npos) << errors;
}

TEST_F(ProgramMaintenanceTest, TaskThatIsCancelledIsEnded)
{
    writeHanging("osascript");
    EXPECT_EQ(runCancelled({ "maintenance", "run", "freeRAM" }), ExitStatus::Cancelled);
    EXPECT_EQ(static_cast<int>(ExitStatus::Cancelled), 130);
    EXPECT_EQ(output + errors, "");
}

TEST_F(ProgramMaintenanceTest, AgentsAreListed)
{
    EXPECT_EQ(runHere({ "agents" }), ExitStatus::Done);
    EXPECT_EQ(output, "Nothing starts by itself.\n");
    EXPECT_EQ(runHere({ "agents", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "[]\n");
    makeList(agent("mine.plist"), "com.example.mine", "/bin/mine");
    writeFile(daemon("other.plist"), "");
    EXPECT_EQ(runHere({ "agents" }), ExitStatus::Done);
    for (const auto& part : { std::string("com.example.mine"), std::string("User Agents"), std::string("/bin/mine"),
             "  " + agent("mine.plist").string() + "\n", std::string("System Daemons\n"),
             std::string("\nTotal: 2 items\n") })
        EXPECT_TRUE(prints(part)) << part << output;
    EXPECT_EQ(runHere({ "agents", "--json" }), ExitStatus::Done);
    ASSERT_EQ(array().size(), 2);
    const auto mine = array()[0].toObject(), other = array()[1].toObject();
    EXPECT_EQ(text(mine["path"]), agent("mine.plist"));
    EXPECT_EQ(text(mine["label"]), "com.example.mine");
    EXPECT_EQ(text(mine["program"]), "/bin/mine");
    EXPECT_EQ(text(mine["domain"]), "User Agents");
    EXPECT_EQ(text(mine["kind"]), "propertyList");
    EXPECT_TRUE(mine["removable"].toBool());
    EXPECT_TRUE(other["program"].isNull());
    EXPECT_FALSE(other["removable"].toBool(true));
}

TEST_F(ProgramMaintenanceTest, LabelsAndProgramsAreShownOnOneLineAndCutWhenLong)
{
    const LaunchAgent hostile("/a.plist", "evil\n\033[2J" + std::string(100'000, 'x'),
        "two\nlines" + std::string(1'000'000, 'y'), LaunchAgent::Domain::User);
    const auto report = agentsAsText({ hostile });
    EXPECT_LT(report.size(), 300U);
    EXPECT_EQ(report.find('\033'), std::string::npos);
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 4) << report;
}

TEST_F(ProgramMaintenanceTest, RemoveWithoutYesOnlySaysWhatItWouldDo)
{
    makeList(agent("mine.plist"), "com.example.mine", "/bin/mine");
    writeProgram(folder / "bin/launchctl", ": > '" + (folder / "called").native() + "'");
    EXPECT_EQ(runHere({ "agents", "remove", agent("mine.plist") }), ExitStatus::Done);
    EXPECT_TRUE(prints("Would be stopped and moved to the Trash:\n  " + agent("mine.plist").string())) << output;
    EXPECT_TRUE(prints("--yes does it")) << output;
    EXPECT_EQ(runHere({ "agents", "remove", agent("mine.plist"), "--json" }), ExitStatus::Done);
    EXPECT_TRUE(json()["dryRun"].toBool());
    EXPECT_EQ(text(json()["label"]), "com.example.mine");
    EXPECT_TRUE(std::filesystem::exists(agent("mine.plist")));
    EXPECT_FALSE(std::filesystem::exists(folder / "called"));
}

TEST_F(ProgramMaintenanceTest, RemoveStopsAndTrashes)
{
    makeList(agent("mine.plist"), "com.example.mine", "/bin/mine");
    const Sentinel other(agent("other.plist"));
    writeProgram(folder / "bin/launchctl", "echo \"$1\" > '" + (folder / "called").native() + "'; exit 5");
    EXPECT_EQ(runHere({ "agents", "remove", agent("mine.plist"), "--yes" }), ExitStatus::Done);
    EXPECT_EQ(output, agent("mine.plist").string() + ": moved to the Trash\n");
    EXPECT_EQ(readFile(folder / "called"), "bootout\n");
    EXPECT_TRUE(isInTrash("mine.plist"));
    EXPECT_EQ(other.difference(), "");
    makeList(agent("next.plist"), "com.example.next", "/bin/next");
    EXPECT_EQ(runHere({ "agents", "remove", agent("next.plist"), "--yes", "--json" }), ExitStatus::Done);
    EXPECT_TRUE(json()["message"].isNull());
    EXPECT_EQ(text(json()["path"]), agent("next.plist"));
}

TEST_F(ProgramMaintenanceTest, RemovalThatIsCancelledIsFinishedWithoutItsServiceManager)
{
    const std::string unstopped
        = "moved to the Trash, but it may still run until the next login: stopping it was cancelled";
    makeList(agent("mine.plist"), "com.example.mine", "/bin/mine");
    writeHanging("launchctl");
    EXPECT_EQ(runCancelled({ "agents", "remove", agent("mine.plist"), "--yes" }), ExitStatus::Cancelled);
    EXPECT_EQ(errors, "korvane-cli: " + agent("mine.plist").string() + ": " + unstopped + "\n");
    EXPECT_TRUE(isInTrash("mine.plist"));
    std::filesystem::remove(folder / "begun");
    makeList(agent("next.plist"), "com.example.next", "/bin/next");
    EXPECT_EQ(runCancelled({ "agents", "remove", agent("next.plist"), "--yes", "--json" }), ExitStatus::Cancelled);
    EXPECT_EQ(text(json()["message"]), unstopped);
    EXPECT_TRUE(isInTrash("next.plist"));
}

TEST_F(ProgramMaintenanceTest, OnlyTheUsersOwnIsRemoved)
{
    const Sentinel shared(daemon("all.plist"));
    const Sentinel document(home() / "Documents/letter.plist");
    EXPECT_EQ(runHere({ "agents", "remove", shared.path(), "--yes" }), ExitStatus::Failed);
    EXPECT_NE(errors.find("is not the user's own"), std::string::npos) << errors;
    for (const auto& wrong : { document.path().string(), agent("none.plist").string(), std::string("all") }) {
        EXPECT_EQ(runHere({ "agents", "remove", wrong, "--yes" }), ExitStatus::WrongUse) << wrong;
        EXPECT_NE(errors.find("'korvane-cli agents' lists them"), std::string::npos) << errors;
    }
    EXPECT_EQ(shared.difference() + document.difference(), "");
}

} // namespace Korvane
