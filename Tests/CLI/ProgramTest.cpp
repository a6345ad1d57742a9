// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/CLI/ProgramFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/Sentinel.h"

#include <chrono>
#include <csignal>

namespace Korvane {

using namespace std::chrono_literals;
using Output = ProgramRun::Output;
using Errors = ProgramRun::Errors;

namespace {

class ProgramTest : public ProgramFixture { };

} // namespace

TEST_F(ProgramTest, ModulesAreListed)
{
    EXPECT_EQ(run({ "modules" }), 0);
    for (const char* name : { "systemJunk", "largeFiles", "duplicates", "Large & Old Files" })
        EXPECT_NE(output.find(name), std::string::npos) << output;
    EXPECT_EQ(run({ "modules", "--json" }), 0);
    const auto modules = json()["modules"].toArray();
    ASSERT_EQ(modules.size(), 6);
    EXPECT_EQ(text(modules[0].toObject()["module"]), "systemJunk");
    EXPECT_EQ(text(modules[0].toObject()["title"]), "System Junk");
    EXPECT_TRUE(modules[0].toObject()["scannable"].toBool());
    EXPECT_FALSE(modules[2].toObject()["scannable"].toBool());
}

TEST_F(ProgramTest, HelpAndVersionArePrinted)
{
    EXPECT_EQ(run({ "--help" }), 0);
    EXPECT_NE(output.find("korvane-cli clean MODULE"), std::string::npos);
    EXPECT_EQ(run({ "clean", "-h" }), 0);
    EXPECT_EQ(run({ "--version" }), 0);
    EXPECT_EQ(output, "korvane-cli " KORVANE_TEST_VERSION "\n");
    EXPECT_EQ(errors, "");
}

TEST_F(ProgramTest, WrongUseSaysWhatIsRight)
{
    EXPECT_EQ(run({}), 2);
    EXPECT_NE(errors.find("modules, scan, clean"), std::string::npos) << errors;
    EXPECT_EQ(run({ "scan", "nothing" }), 2);
    EXPECT_NE(errors.find("systemJunk, largeFiles, duplicates"), std::string::npos) << errors;
    EXPECT_EQ(run({ "scan", "systemJunk", "--yes" }), 2);
    EXPECT_NE(errors.find("'clean'"), std::string::npos) << errors;
    EXPECT_EQ(output, "");
}

TEST_F(ProgramTest, EmptyHomeHasNothingToClean)
{
    EXPECT_EQ(run({ "scan", "systemJunk" }), 0);
    EXPECT_EQ(output, "Nothing found to clean in this module.\n");
    EXPECT_EQ(run({ "scan", "systemJunk", "--json" }), 0);
    EXPECT_EQ(output, "{\"module\":\"systemJunk\",\"items\":[],\"totalBytes\":0}\n");
    EXPECT_EQ(run({ "clean", "systemJunk", "--all" }), 0);
    EXPECT_EQ(output, "Nothing found to clean in this module.\n");
    EXPECT_EQ(run({ "clean", "systemJunk" }), 0);
    EXPECT_NE(output.find("no finding is pre-selected"), std::string::npos) << output;
}

TEST_F(ProgramTest, ScanPrintsGroupsWithSizesAndChangesNothing)
{
    const auto log = makeLog("run.log", 100'000);
    const auto cache = makeSystemCache();
    const Sentinel sentinel(home() / "Library/Logs/sentinel");
    EXPECT_EQ(run({ "scan", "systemJunk" }), 0);
    EXPECT_LT(output.find("Log Files"), output.find("User Caches")) << output;
    EXPECT_NE(output.find("[x]"), std::string::npos);
    EXPECT_NE(output.find("[ ]"), std::string::npos);
    EXPECT_NE(output.find(log.string() + "\n"), std::string::npos);
    EXPECT_NE(output.find("Total: 3 items"), std::string::npos);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(sentinel.difference(), "");
    EXPECT_TRUE(std::filesystem::exists(log) && std::filesystem::exists(cache));
    EXPECT_FALSE(std::filesystem::exists(home() / ".local"));
}

TEST_F(ProgramTest, ScanPrintsOneJsonObjectWithTheMembersInOrder)
{
    const auto log = makeLog("a \"quoted\"\nname.log");
    const auto cache = makeSystemCache();
    EXPECT_EQ(run({ "scan", "--json", "systemJunk" }), 0);
    const auto object = json();
    EXPECT_EQ(text(object["module"]), "systemJunk");
    const auto items = object["items"].toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(text(items[0].toObject()["path"]), cache);
    EXPECT_EQ(text(items[0].toObject()["category"]), "User Caches");
    EXPECT_EQ(text(items[0].toObject()["displayName"]), "com.apple.thing");
    EXPECT_FALSE(items[0].toObject()["selectableByDefault"].toBool());
    EXPECT_EQ(text(items[1].toObject()["path"]), log);
    EXPECT_TRUE(items[1].toObject()["selectableByDefault"].toBool());
    EXPECT_EQ(object["totalBytes"].toInteger(),
        items[0].toObject()["sizeInBytes"].toInteger() + items[1].toObject()["sizeInBytes"].toInteger());
    std::size_t position = 0;
    for (const char* key : { "{\"module\":", "\"items\":[{\"path\":", "\"displayName\":", "\"category\":",
             "\"sizeInBytes\":", "\"selectableByDefault\":", "\"totalBytes\":" }) {
        position = output.find(key, position);
        EXPECT_NE(position, std::string::npos) << key;
    }
}

TEST_F(ProgramTest, PathThatIsNoTextIsGivenExactlyToo)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto log = makeLog("bad\xff.log");
    EXPECT_EQ(run({ "scan", "systemJunk", "--json" }), 0);
    const auto item = json()["items"].toArray()[0].toObject();
    EXPECT_EQ(QByteArray::fromBase64(text(item["pathBase64"]).c_str()).toStdString(), log.native());
    EXPECT_NE(text(item["path"]).find("bad\uFFFD.log"), std::string::npos);
    EXPECT_EQ(run({ "clean", "systemJunk", "--item", log.native(), "--yes", "--delete" }), 0);
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(ProgramTest, LargeFilesAndDuplicatesAreScannedToo)
{
    writeFile(home() / "a.bin", std::string(1'048'576, 'x'));
    writeFile(home() / "b.bin", std::string(1'048'576, 'x'));
    EXPECT_EQ(run({ "scan", "duplicates", "--json" }), 0);
    EXPECT_EQ(json()["items"].toArray().size(), 2);
    EXPECT_EQ(run({ "scan", "duplicates" }), 0);
    EXPECT_NE(output.find(".bin (original)\n"), std::string::npos) << output;
    EXPECT_EQ(run({ "scan", "largeFiles", "--json" }), 0);
    EXPECT_EQ(text(json()["module"]), "largeFiles");
}

TEST_F(ProgramTest, CopyThatIsAnotherNameOfTheOriginalIsSaidToFreeNothing)
{
    const std::string remark = "(another name of the original: removing it alone frees no space)\n";
    writeFile(home() / "a.bin", std::string(1'048'576, 'x'));
    writeFile(home() / "b.bin", std::string(1'048'576, 'x'));
    EXPECT_EQ(run({ "scan", "duplicates" }), 0);
    EXPECT_EQ(output.find(remark), std::string::npos) << output;
    std::filesystem::remove(home() / "b.bin");
    std::filesystem::create_hard_link(home() / "a.bin", home() / "b.bin");
    EXPECT_EQ(run({ "scan", "duplicates" }), 0);
    EXPECT_NE(output.find(".bin " + remark), std::string::npos) << output;
    EXPECT_NE(output.find(".bin (original)\n"), std::string::npos) << output;
    EXPECT_EQ(run({ "clean", "duplicates" }), 0);
    EXPECT_NE(output.find(".bin " + remark), std::string::npos) << output;
    EXPECT_EQ(run({ "scan", "duplicates", "--json" }), 0);
    EXPECT_EQ(json()["items"].toArray()[0].toObject().size(), 5);
}

TEST_F(ProgramTest, OutputThatCannotBeWrittenIsAFailure)
{
    makeLog("run.log");
    for (const auto broken : { Output::FullDevice, Output::BrokenPipe, Output::Closed }) {
        EXPECT_EQ(run({ "scan", "systemJunk" }, broken), 1);
        EXPECT_NE(errors.find("korvane-cli: standard output"), std::string::npos) << errors;
    }
}

TEST_F(ProgramTest, HomeThatIsMissingIsEmpty)
{
    std::filesystem::remove(home());
    for (const char* module : { "systemJunk", "largeFiles", "duplicates" }) {
        EXPECT_EQ(run({ "scan", module, "--json" }), 0);
        EXPECT_TRUE(json()["items"].toArray().isEmpty());
    }
}

TEST_F(ProgramTest, CacheDirectoryOfTheEnvironmentIsHonoured)
{
    writeFile(folder / "caches/player/data", std::size_t{ 5000 });
    ProgramRun program(folder.path(), { "scan", "systemJunk" }, Output::Captured, Errors::Captured,
        { "XDG_CACHE_HOME=" + (folder / "caches").string() });
    program.finish();
    EXPECT_EQ(program.status(), 0);
    EXPECT_NE(program.output().find((folder / "caches/player").string()), std::string::npos);
}

TEST_F(ProgramTest, ProgressIsShownOnATerminalAndWipedAtTheEnd)
{
    makeLog("run.log");
    ProgramRun program(folder.path(), { "scan", "systemJunk" }, Output::Captured, Errors::Terminal);
    program.finish();
    EXPECT_EQ(program.status(), 0);
    const auto& shown = program.errors();
    EXPECT_NE(shown.find(" found, "), std::string::npos) << shown;
    EXPECT_EQ(shown.find('\n'), std::string::npos);
    ASSERT_GT(shown.size(), 2U);
    EXPECT_EQ(shown.back(), '\r');
    const auto wipe = shown.substr(shown.rfind('\r', shown.size() - 2) + 1);
    EXPECT_EQ(wipe.find_first_not_of(" \r"), std::string::npos) << wipe;
}

TEST_F(ProgramTest, InterruptedScanEndsAtOnceAndReportsNothing)
{
    for (int i = 0; i < 3000; ++i) {
        writeFile(home() / ("f" + std::to_string(i)), std::string_view());
        std::filesystem::resize_file(home() / ("f" + std::to_string(i)), 8'388'608);
    }
    ProgramRun program(folder.path(), { "scan", "duplicates", "--json" }, Output::Captured, Errors::Terminal);
    ASSERT_TRUE(program.waitForTerminalText(" found, "));
    const auto start = std::chrono::steady_clock::now();
    program.signal(SIGINT);
    program.finish();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
    EXPECT_EQ(program.status(), 130);
    EXPECT_EQ(program.output(), "");
}

} // namespace Korvane
