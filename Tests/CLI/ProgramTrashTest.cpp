// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Support/TestBundles.h"

#include <csignal>

namespace Korvane {

using Output = ProgramRun::Output;
using Errors = ProgramRun::Errors;

namespace {

/// Runs that move things to the Trash. Only where the environment of a program says which Trash that is: elsewhere it
/// would be that of whoever runs the tests.
class ProgramTrashTest : public ProgramFixture {
protected:
    std::filesystem::path trashed(const std::string& name) const { return home() / ".local/share/Trash/files" / name; }
};

} // namespace

TEST_F(ProgramTrashTest, CleanMovesThePreselectedToTheTrash)
{
    const auto log = makeLog("run.log");
    const auto cache = makeSystemCache();
    EXPECT_EQ(run({ "clean", "systemJunk", "--yes", "--json" }), 0);
    EXPECT_EQ(json()["cleanedCount"].toInteger(), 1);
    EXPECT_GE(json()["cleanedBytes"].toInteger(), 5000);
    EXPECT_TRUE(json()["failures"].toArray().isEmpty());
    EXPECT_FALSE(std::filesystem::exists(log));
    EXPECT_TRUE(std::filesystem::exists(trashed("run.log")));
    EXPECT_TRUE(std::filesystem::exists(cache));
}

TEST_F(ProgramTrashTest, CleanReportsForPeopleToo)
{
    makeLog("run.log");
    EXPECT_EQ(run({ "clean", "systemJunk", "--yes" }), 0);
    EXPECT_NE(output.find("1 items moved to Trash or removed\n"), std::string::npos) << output;
    EXPECT_EQ(output.find("could not"), std::string::npos);
}

TEST_F(ProgramTrashTest, DeleteLeavesNothingInTheTrash)
{
    const auto log = makeLog("run.log");
    EXPECT_EQ(run({ "clean", "systemJunk", "--delete", "--yes" }), 0);
    EXPECT_FALSE(std::filesystem::exists(log));
    EXPECT_FALSE(std::filesystem::exists(trashed("run.log")));
}

TEST_F(ProgramTrashTest, AllTakesWhatIsNotPreselected)
{
    const auto cache = makeSystemCache();
    EXPECT_EQ(run({ "clean", "systemJunk", "--all", "--yes" }), 0);
    EXPECT_FALSE(std::filesystem::exists(cache));
    EXPECT_TRUE(std::filesystem::exists(trashed("com.apple.thing")));
}

TEST_F(ProgramTrashTest, UninstallMovesTheApplicationAndItsLeftoversToTheTrash)
{
    const auto app = makeBundle(home() / "Applications/Painter.app", "com.example.painter");
    const auto other = makeBundle(home() / "Applications/Other.app", "com.example.other");
    const auto cache = home() / "Library/Caches/com.example.painter";
    writeFile(cache / "data", std::size_t{ 9000 });
    EXPECT_EQ(run({ "uninstall", "com.example.painter", "--yes", "--json" }), 0) << errors;
    EXPECT_EQ(json()["cleanedCount"].toInteger(), 2);
    EXPECT_TRUE(json()["failures"].toArray().isEmpty());
    EXPECT_FALSE(std::filesystem::exists(app) || std::filesystem::exists(cache));
    EXPECT_TRUE(std::filesystem::exists(trashed("Painter.app/Contents/Info.plist")));
    EXPECT_TRUE(std::filesystem::exists(trashed("com.example.painter/data")));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_EQ(run({ "uninstall", other, "--yes" }), 0);
    EXPECT_NE(output.find("1 items moved to Trash or removed\n"), std::string::npos) << output;
}

TEST_F(ProgramTrashTest, InterruptedCleaningReportsExactlyWhatWasDone)
{
    constexpr std::size_t count = 10'000;
    for (std::size_t i = 0; i < count; ++i)
        makeLog("f" + std::to_string(i), 1);
    ProgramRun program(folder.path(), { "clean", "systemJunk", "--yes", "--json" }, Output::Captured, Errors::Terminal);
    ASSERT_TRUE(program.waitForTerminalText("Cleaning "));
    program.signal(SIGINT);
    program.finish();
    output = program.output();
    EXPECT_EQ(program.status(), 130) << output;
    EXPECT_NE(program.errors().find("were not touched"), std::string::npos);
    const auto cleaned = static_cast<std::size_t>(json()["cleanedCount"].toInteger());
    std::size_t left = 0;
    for (const auto& entry : std::filesystem::directory_iterator(home() / "Library/Logs"))
        left += entry.is_regular_file() ? 1 : 0;
    std::size_t inTrash = 0;
    for (const auto& entry : std::filesystem::directory_iterator(trashed("")))
        inTrash += entry.is_regular_file() ? 1 : 0;
    EXPECT_LT(cleaned, count);
    EXPECT_EQ(cleaned, inTrash);
    EXPECT_EQ(cleaned + left, count);
}

} // namespace Korvane
