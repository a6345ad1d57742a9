// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/MediaExportFixture.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Support/TestProcessRunner.h"

namespace Korvane {

namespace {

/// What lies there after a copy that failed.
class MediaExportFailureTest : public MediaExportFixture { };

} // namespace

TEST_F(MediaExportFailureTest, FileThatSomebodyElseMakesMeanwhileStaysWhereTheToolSaysThatItIsThere)
{
    for (const auto& style : styles()) {
        for (const char* refusal :
            { "Failed to overwrite existing file without '-f' option: ", "Local file already exists: " }) {
            change([&](auto& rules) {
                rules.style = style;
                rules.rival = "somebody else's";
                rules.refusal = refusal;
            });
            expectFailure(path, downloads());
            EXPECT_EQ(readFile(downloads() / "IMG_1.MOV"), "somebody else's") << style << ", " << refusal;
            std::filesystem::remove(downloads() / "IMG_1.MOV");
        }
    }
    EXPECT_EQ(trashed(), Paths());
}

TEST_F(MediaExportFailureTest, FileThatSomebodyElseMakesMeanwhileStaysWhereNothingWasOpened)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.rival = "somebody else's";
        });
        expectFailure("/DCIM/100APPLE/IMG_9.MOV", downloads());
        EXPECT_EQ(readFile(downloads() / "IMG_9.MOV"), "somebody else's") << style;
        std::filesystem::remove(downloads() / "IMG_9.MOV");
    }
    EXPECT_EQ(trashed(), Paths());
}

TEST_F(MediaExportFailureTest, FileThatSomebodyElseMakesBeforeACancelIsInTheTrash)
{
    change([](auto& rules) {
        rules.rival = "somebody else's";
        rules.hangs = "get";
    });
    EXPECT_TRUE(isCancelled(
        [&](const auto& cancellation) { manager().exportFile(file(path), udid, downloads(), {}, cancellation); }));
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
    EXPECT_TRUE(isInTestTrash(host().environment, "IMG_1.MOV"));
    EXPECT_EQ(trashed(), (Paths{ "somebody else's" }));
}

TEST_F(MediaExportFailureTest, FileThatSomebodyElseMakesBeforeTheToolDiesIsInTheTrash)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.rival = "somebody else's";
            rules.complains = "get";
        });
        expectNothingLeft(style);
    }
    EXPECT_EQ(trashed(), Paths(styles().size(), "somebody else's"));
}

TEST_F(MediaExportFailureTest, NameThatSaysExistsDoesNotKeepAPartialFile)
{
    tool().add("/DCIM/100APPLE/exists.MOV", photo);
    change([](auto& rules) {
        rules.rival = "a part";
        rules.refusal = "Failed to read ";
    });
    expectFailure("/DCIM/100APPLE/exists.MOV", downloads());
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
    EXPECT_EQ(trashed(), (Paths{ "a part" }));
}

TEST_F(MediaExportFailureTest, PartThatWasBegunDoesNotStayWhateverTheErrorSays)
{
    auto runner = std::make_shared<TestProcessRunner>();
    runner->answer = [&](const ChildProcess&, const Cancellation&) {
        writeFile(downloads() / "IMG_1.MOV", "a part");
        ChildResult result = TestProcessRunner::exited(0);
        result.output.text = "\r11% (1.0 MB/s)   Error: Failed to read from file: Object not found (8)\n";
        return result;
    };
    host().processes = runner;
    expectNothingLeft("error");
    EXPECT_EQ(trashed(), (Paths{ "a part" }));
}

TEST_F(MediaExportFailureTest, FileWithoutBytesHasNotArrived)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.empties = true;
        });
        expectNothingLeft(style);
    }
}

TEST_F(MediaExportFailureTest, CopyThatBreaksLeavesNothing)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.breaks = "get";
        });
        expectNothingLeft("error, " + style);
        change([&](auto& rules) {
            rules.breaks = "";
            rules.dies = "get";
        });
        expectNothingLeft("signal, " + style);
        change([&](auto& rules) {
            rules.dies = "";
            rules.leaves = style == "bare" ? "" : "get";
        });
        if (style != "bare")
            expectNothingLeft("exit, " + style);
        change([&](auto& rules) { rules.leaves = ""; });
    }
    // Each part is in the Trash, for it might have been another's.
    EXPECT_EQ(trashed(), Paths(3 * styles().size() - 1, photo.substr(0, photo.size() * 4 / 9)));
}

TEST_F(MediaExportFailureTest, ErrorIsAFailureThoughAFileIsThere)
{
    for (const char* error : { "Failed to close the file", "The device no longer exists" }) {
        auto runner = std::make_shared<TestProcessRunner>();
        runner->answer = [&](const ChildProcess&, const Cancellation&) {
            writeFile(downloads() / "IMG_1.MOV", "looks fine");
            ChildResult result = TestProcessRunner::exited(0);
            result.output.text = std::string("\r100% (1.0 MB/s)   \nError: ") + error + "\n";
            return result;
        };
        host().processes = runner;
        expectNothingLeft(error);
    }
}

TEST_F(MediaExportFailureTest, WhatIsNoFileHasNotArrivedAndStays)
{
    const Sentinel target(home() / "target");
    auto runner = std::make_shared<TestProcessRunner>();
    runner->answer = [&](const ChildProcess&, const Cancellation&) {
        std::filesystem::create_symlink(target.path(), downloads() / "IMG_1.MOV");
        return TestProcessRunner::exited(0);
    };
    host().processes = runner;
    expectFailure(path, downloads());
    EXPECT_TRUE(std::filesystem::is_symlink(downloads() / "IMG_1.MOV"));
    EXPECT_EQ(target.difference(), "");
}

TEST_F(MediaExportFailureTest, PartThatCannotBeTakenAwayIsTold)
{
    change([](auto& rules) { rules.breaks = "get"; });
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeRemoving = [](const std::filesystem::path& place) {
        throw FileError(place, std::make_error_code(std::errc::permission_denied));
    };
    host().files = files;
    const auto failure = "Export failed for IMG_1.MOV; what lies there now could not be moved to the Trash: "
        + FileError({}, std::make_error_code(std::errc::permission_denied)).localizedDescription();
    EXPECT_EQ(exportFailure(path, downloads()), failure);
    EXPECT_TRUE(std::filesystem::exists(downloads() / "IMG_1.MOV"));
    EXPECT_EQ(files->removed(), std::vector<std::filesystem::path>());
}

TEST_F(MediaExportFailureTest, PartIsTrashedFromWhereItReallyLies)
{
    change([](auto& rules) { rules.breaks = "get"; });
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    host().files = files;
    std::filesystem::create_directory(home() / "my photos");
    expectFailure(path, home() / "my photos");
    tool().add("/DCIM/100APPLE/2.MOV", photo);
    expectFailure("/DCIM/100APPLE/\xC3\xA9"
                  "2.MOV",
        home() / "my photos");
    const std::vector<std::filesystem::path> places{ home() / "my photos/IMG_1.MOV", home() / "my photos/2.MOV" };
    EXPECT_EQ(files->trashed(), places);
    EXPECT_TRUE(std::filesystem::is_empty(home() / "my photos") && std::filesystem::is_empty(temporary()));
}

TEST_F(MediaExportFailureTest, CancelledCopyIsEndedAndLeavesNothing)
{
    change([](auto& rules) { rules.hangs = "copy"; });
    EXPECT_TRUE(isCancelled(
        [&](const auto& cancellation) { manager().exportFile(file(path), udid, downloads(), {}, cancellation); }));
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
    const Cancellation cancelled;
    cancelled.cancel();
    EXPECT_THROW(manager().exportFile(file(path), udid, downloads(), {}, cancelled), CancellationError);
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
}

TEST_F(MediaExportFailureTest, CopyThatWentElsewhereByAMisunderstandingIsAFailureAndDoesNotStay)
{
    lendNoPath();
    std::filesystem::create_directory(home() / "my photos");
    expectFailure(path, home() / "my photos");
    EXPECT_EQ(tool().runs(), 1U);
    EXPECT_FALSE(std::filesystem::exists(home() / "my"));
    EXPECT_EQ(trashed(), (Paths{ photo }));
    EXPECT_TRUE(std::filesystem::is_empty(home() / "my photos"));
}

} // namespace Korvane
