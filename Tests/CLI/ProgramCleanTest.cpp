// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Program.h"
#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestWorkspace.h"

#include <unistd.h>

namespace Korvane {

namespace {

class ProgramCleanTest : public ProgramFixture { };

} // namespace

TEST_F(ProgramCleanTest, CleanWithoutYesOnlySaysWhatItWouldDo)
{
    const auto log = makeLog("run.log");
    const auto cache = makeSystemCache();
    EXPECT_EQ(run({ "clean", "systemJunk" }), 0);
    EXPECT_NE(output.find("Would be moved to the Trash:"), std::string::npos);
    EXPECT_NE(output.find("--yes"), std::string::npos);
    EXPECT_EQ(output.find(cache.string()), std::string::npos);
    EXPECT_EQ(run({ "clean", "systemJunk", "--all", "--delete", "--json" }), 0);
    EXPECT_TRUE(json()["dryRun"].toBool());
    ASSERT_EQ(json()["items"].toArray().size(), 2);
    EXPECT_EQ(text(json()["items"].toArray()[0].toObject()["action"]), "delete");
    EXPECT_TRUE(std::filesystem::exists(log) && std::filesystem::exists(cache));
}

TEST_F(ProgramCleanTest, NamedItemsAloneAreTakenHoweverOften)
{
    const auto first = makeLog("first.log");
    const auto second = makeLog("second.log");
    const auto cache = makeSystemCache();
    EXPECT_EQ(run({ "clean", "systemJunk", "--item", first, "--item=" + cache.string(), "--item", first, "--delete",
                  "--yes", "--json" }),
        0);
    EXPECT_EQ(json()["cleanedCount"].toInteger(), 2);
    EXPECT_FALSE(std::filesystem::exists(first) || std::filesystem::exists(cache));
    EXPECT_TRUE(std::filesystem::exists(second));
}

TEST_F(ProgramCleanTest, ItemThatIsNoFindingStopsEverything)
{
    const auto log = makeLog("run.log");
    const Sentinel sentinel(home() / "Documents/keep");
    for (const auto& wrong : { sentinel.path().string(), log.string() + "/", std::string("run.log"), std::string() }) {
        EXPECT_EQ(run({ "clean", "systemJunk", "--item", log, "--item", wrong, "--yes", "--delete" }), 2) << wrong;
        EXPECT_NE(errors.find("korvane-cli scan systemJunk"), std::string::npos) << errors;
        EXPECT_EQ(output, "");
    }
    EXPECT_TRUE(std::filesystem::exists(log));
    EXPECT_EQ(sentinel.difference(), "");
}

TEST_F(ProgramCleanTest, TrashIsEmptiedAndThePlanSaysSo)
{
    writeFile(home() / ".Trash/old", std::size_t{ 5000 });
    EXPECT_EQ(run({ "clean", "systemJunk", "--all" }), 0);
    EXPECT_NE(output.find("Would be emptied"), std::string::npos) << output;
    EXPECT_EQ(run({ "clean", "systemJunk", "--all", "--yes" }), 0);
    EXPECT_TRUE(std::filesystem::is_empty(home() / ".Trash"));
}

TEST_F(ProgramCleanTest, ItemsThatFailAreReportedWithTheReason)
{
    const auto log = makeLog("run.log");
    const auto other = home() / "Library/Developer/Xcode/DerivedData/Project";
    writeFile(other / "data", std::size_t{ 5000 });
    giveToOrdinaryUser(folder.path());
    std::filesystem::permissions(log.parent_path(), std::filesystem::perms(0555));
    if (geteuid() == 0) {
        ASSERT_EQ(chown(log.parent_path().c_str(), 0, 0), 0);
    }
    const auto answer = runAsOrdinaryUser([&] {
        ProgramRun program(folder.path(), { "clean", "systemJunk", "--yes", "--delete", "--json" });
        program.finish();
        return std::to_string(program.status()) + program.output();
    });
    output = answer.substr(1);
    EXPECT_EQ(answer.front(), '1') << answer;
    EXPECT_EQ(json()["cleanedCount"].toInteger(), 1);
    const auto failures = json()["failures"].toArray();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(text(failures[0].toObject()["path"]), log);
    EXPECT_FALSE(text(failures[0].toObject()["message"]).empty());
    EXPECT_TRUE(std::filesystem::exists(log));
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(ProgramCleanTest, CancelLetsTheItemAtHandBeFinished)
{
    for (const char* name : { "a", "b", "c", "d", "e" })
        makeLog(name);
    auto environment = Environment::inFolder(folder.path());
    auto files = std::make_shared<ForwardingFileManager>(makeFileManager(environment));
    const Cancellation cancellation;
    files->beforeRemoving = [&](const std::filesystem::path&) {
        if (files->removed().size() == 2)
            cancellation.cancel();
    };
    Program program({ environment, files, std::make_shared<TestWorkspace>(), nullptr, nullptr, nullptr }, cancellation);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto status = program.run({ "clean", "systemJunk", "--delete", "--yes", "--json" });
    output = testing::internal::GetCapturedStdout();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "korvane-cli: cancelled; 2 items were not touched\n");
    EXPECT_EQ(status, ExitStatus::Cancelled);
    EXPECT_EQ(json()["cleanedCount"].toInteger(), 3);
    EXPECT_EQ(files->removed().size(), 3U);
}

} // namespace Korvane
