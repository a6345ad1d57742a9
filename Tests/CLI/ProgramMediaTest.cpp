// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/MediaReports.h"
#include "Tests/CLI/ProgramMediaFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

namespace Korvane {

namespace {

class ProgramMediaTest : public ProgramMediaFixture { };

} // namespace

TEST_F(ProgramMediaTest, CameraRollIsListed)
{
    EXPECT_EQ(runHere({ "media", "list", "UDID" }), ExitStatus::Done);
    EXPECT_EQ(output,
        "100APPLE  1 file\n  " + first + "\n101APPLE  1 file\n  " + second + "\n\nTotal: 2 files in 2 folders\n");
    EXPECT_EQ(tool.log().front(), "run -u UDID");
    EXPECT_EQ(runHere({ "media", "list", "UDID", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output,
        "[{\"path\":\"/DCIM/100APPLE\",\"name\":\"100APPLE\",\"files\":[{\"path\":\"" + first
            + "\",\"name\":\"IMG_1.JPG\"}]},{\"path\":\"/DCIM/101APPLE\",\"name\":\"101APPLE\",\"files\":[{\"path\":\""
            + second + "\",\"name\":\"IMG_2.JPG\"}]}]\n");
    std::filesystem::remove_all(tool.rules.device / "DCIM");
    EXPECT_EQ(runHere({ "media", "list", "UDID" }), ExitStatus::Done);
    EXPECT_EQ(output, "No media found in the camera roll.\n");
    EXPECT_EQ(runHere({ "media", "list", "UDID", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "[]\n");
}

TEST_F(ProgramMediaTest, NamesAreShownSafely)
{
    const auto report = mediaAsText({ { "/DCIM/a\x1b[2J", "a\x1b[2J", { { "/DCIM/a\x1b[2J/b\nc", "b\nc" } } } });
    EXPECT_EQ(report.find('\x1b'), std::string::npos);
    EXPECT_EQ(report,
        "a\xE2\x90\x9B[2J  1 file\n  /DCIM/a\xE2\x90\x9B[2J/b\xE2\x90\x8A"
        "c\n\nTotal: 1 file in 1 folder\n");
    EXPECT_NE(mediaAsJson({ { "/DCIM/\xFF", "\xFF", {} } }).find("\"pathBase64\":\"L0RDSU0v/w==\""), std::string::npos);
}

TEST_F(ProgramMediaTest, MissingToolIsTold)
{
    std::filesystem::remove(folder / "local/bin/afcclient");
    for (const char* action : { "list", "export", "delete" }) {
        std::vector<std::string> arguments{ "media", action, "UDID" };
        if (arguments[1] != "list")
            arguments.push_back(first);
        EXPECT_EQ(runHere(arguments), ExitStatus::Failed);
        EXPECT_EQ(errors, "korvane-cli: afcclient not found — install libimobiledevice\n");
        EXPECT_EQ(output, "");
    }
}

TEST_F(ProgramMediaTest, FilesAreExportedToTheDownloads)
{
    EXPECT_EQ(runHere({ "media", "export", "UDID", first, second, first }), ExitStatus::Done);
    EXPECT_EQ(output, "Exported 2 files to " + downloads().string() + "\n");
    EXPECT_EQ(readFile(downloads() / "IMG_1.JPG"), "one");
    EXPECT_EQ(readFile(downloads() / "IMG_2.JPG"), "two");
    EXPECT_TRUE(tool.has(first) && tool.has(second));
}

TEST_F(ProgramMediaTest, FilesAreExportedToANamedFolder)
{
    std::filesystem::create_directory(home() / "my photos");
    EXPECT_EQ(runHere({ "media", "export", "UDID", first, "--to", home() / "my photos", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output,
        "{\"folder\":{\"path\":\"" + (home() / "my photos").string() + "\"},\"exported\":[{\"path\":\"" + first
            + "\"}],\"failures\":[]}\n");
    EXPECT_EQ(readFile(home() / "my photos/IMG_1.JPG"), "one");
    const auto relative = std::filesystem::relative(home() / "my photos");
    ASSERT_TRUE(relative.is_relative());
    EXPECT_EQ(runHere({ "media", "export", "--to", relative, "UDID", second, "--json" }), ExitStatus::Done);
    EXPECT_TRUE(std::filesystem::path(text(json()["folder"].toObject()["path"])).is_absolute());
    EXPECT_EQ(readFile(home() / "my photos/IMG_2.JPG"), "two");
    EXPECT_EQ(
        runHere({ "media", "export", "UDID", first, "--to=" + (home() / "missing").string() }), ExitStatus::Failed);
    EXPECT_EQ(errors, "korvane-cli: " + (home() / "missing").string() + " is no folder\n");
}

TEST_F(ProgramMediaTest, MissingFolderOfDownloadsIsMadeForWhatIsExported)
{
    std::filesystem::remove(downloads());
    EXPECT_EQ(runHere({ "media", "export", "UDID", "/DCIM/other" }), ExitStatus::WrongUse);
    EXPECT_FALSE(std::filesystem::exists(downloads()));
    EXPECT_EQ(runHere({ "media", "export", "UDID", first }), ExitStatus::Done);
    EXPECT_EQ(output, "Exported 1 file to " + downloads().string() + "\n");
    EXPECT_EQ(readFile(downloads() / "IMG_1.JPG"), "one");
}

TEST_F(ProgramMediaTest, WhatLiesInPlaceOfTheFolderOfDownloadsIsTold)
{
    std::filesystem::remove(downloads());
    std::filesystem::create_symlink(home() / "nowhere", downloads());
    const auto complaint = "korvane-cli: " + downloads().string() + ": Not a directory\n";
    EXPECT_EQ(runHere({ "media", "export", "UDID", first }), ExitStatus::Failed);
    EXPECT_EQ(errors, complaint);
    EXPECT_FALSE(std::filesystem::exists(home() / "nowhere"));
    std::filesystem::remove(downloads());
    const Sentinel file(downloads());
    EXPECT_EQ(runHere({ "media", "export", "UDID", first }), ExitStatus::Failed);
    EXPECT_EQ(errors, complaint);
    EXPECT_EQ(file.difference(), "");
}

TEST_F(ProgramMediaTest, FolderOfDownloadsThatCannotBeMadeIsTold)
{
    std::filesystem::remove(downloads());
    giveToOrdinaryUser(folder.path());
    std::filesystem::permissions(home(), std::filesystem::perms(0555));
    EXPECT_EQ(runAsOrdinaryUser([&] {
        const auto status = runHere({ "media", "export", "UDID", first });
        return std::to_string(static_cast<int>(status)) + "|" + errors;
    }),
        std::to_string(static_cast<int>(ExitStatus::Failed)) + "|korvane-cli: " + downloads().string()
            + ": Permission denied\n");
    std::filesystem::permissions(home(), std::filesystem::perms(0755));
}

TEST_F(ProgramMediaTest, FailureDoesNotStopTheRestAndReplacesNothing)
{
    const Sentinel old(downloads() / "IMG_1.JPG");
    EXPECT_EQ(runHere({ "media", "export", "UDID", first, second }), ExitStatus::Failed);
    EXPECT_EQ(
        output, first + ": Export failed for IMG_1.JPG\nExported 1 file to " + downloads().string() + ", 1 failed\n");
    EXPECT_EQ(old.difference(), "");
    EXPECT_EQ(readFile(downloads() / "IMG_2.JPG"), "two");
    EXPECT_EQ(runHere({ "media", "export", "UDID", first, "--json" }), ExitStatus::Failed);
    EXPECT_EQ(text(json()["failures"].toArray()[0].toObject()["message"]), "Export failed for IMG_1.JPG");
    EXPECT_EQ(text(json()["failures"].toArray()[0].toObject()["path"]), first);
}

TEST_F(ProgramMediaTest, CancelledExportSaysWhatWasNotExported)
{
    tool.rules.hangs = "copy";
    tool.apply();
    EXPECT_EQ(runCancelled({ "media", "export", "UDID", first, second }), ExitStatus::Cancelled);
    EXPECT_EQ(errors, "korvane-cli: cancelled; 2 files were not exported\n");
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
}

TEST_F(ProgramMediaTest, DeletionWithoutYesOnlySaysWhatItWouldDo)
{
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first }), ExitStatus::Done);
    EXPECT_EQ(output,
        "Would be deleted from the device for good:\n  " + first
            + "\n\n1 file. Nothing has been changed; --yes does it.\n");
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first, "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "{\"dryRun\":true,\"items\":[{\"path\":\"" + first + "\"}]}\n");
    EXPECT_TRUE(tool.has(first));
}

TEST_F(ProgramMediaTest, FilesAreDeleted)
{
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first, "--yes" }), ExitStatus::Done);
    EXPECT_EQ(output, "Deleted 1 file\n");
    EXPECT_FALSE(tool.has(first));
    EXPECT_TRUE(tool.has(second));
    EXPECT_EQ(runHere({ "media", "delete", "UDID", second, "--yes", "--json" }), ExitStatus::Done);
    EXPECT_EQ(output, "{\"deleted\":[{\"path\":\"" + second + "\"}],\"remaining\":[]}\n");
}

TEST_F(ProgramMediaTest, WhatIsStillThereIsTold)
{
    tool.rules.keeps = "IMG_1";
    tool.apply();
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first, second, "--yes" }), ExitStatus::Failed);
    EXPECT_EQ(output, "Deleted 1 file, 1 failed\nStill on the device:\n  " + first + "\n");
    EXPECT_EQ(runHere({ "media", "delete", "UDID", first, "--yes", "--json" }), ExitStatus::Failed);
    EXPECT_EQ(output, "{\"deleted\":[],\"remaining\":[{\"path\":\"" + first + "\"}]}\n");
}

TEST_F(ProgramMediaTest, CancelledDeletionSaysThatSomeMayBeGone)
{
    tool.rules.hangs = "rm";
    tool.apply();
    EXPECT_EQ(runCancelled({ "media", "delete", "UDID", first, "--yes" }), ExitStatus::Cancelled);
    EXPECT_EQ(errors,
        "korvane-cli: cancelled; some files may have been deleted, 'korvane-cli media list' shows what is left\n");
    std::filesystem::remove(tool.rules.begun);
    tool.rules.hangs = "ls";
    tool.apply();
    EXPECT_EQ(runCancelled({ "media", "delete", "UDID", first, "--yes" }), ExitStatus::Cancelled);
    EXPECT_EQ(output + errors, "");
}

TEST_F(ProgramMediaTest, DeletionCancelledWhileItIsVerifiedSaysThatSomeMayBeGone)
{
    tool.rules.hangs = "ls";
    tool.rules.hangsBehind = "rm";
    tool.apply();
    EXPECT_EQ(runCancelled({ "media", "delete", "UDID", first, "--yes", "--json" }), ExitStatus::Cancelled);
    EXPECT_EQ(errors,
        "korvane-cli: cancelled; some files may have been deleted, 'korvane-cli media list' shows what is left\n");
    EXPECT_EQ(output, "");
    EXPECT_FALSE(tool.has(first));
    EXPECT_EQ(tool.log().back(), "ls /DCIM/100APPLE");
}

TEST_F(ProgramMediaTest, PathOutsideTheCameraRollIsWrongUseAndNothingIsDone)
{
    tool.add("/Books/book.pdf");
    for (const char* path : { "/Books/book.pdf", "/DCIM", "/DCIM/100APPLE", "/DCIM/100APPLE/", "IMG_1.JPG", "" }) {
        for (const char* action : { "export", "delete" }) {
            EXPECT_EQ(runHere({ "media", action, "UDID", first, path }), ExitStatus::WrongUse) << path;
            EXPECT_EQ(errors,
                "korvane-cli: '" + std::string(path)
                    + "' is not in the camera roll; 'korvane-cli media list' lists what is\n");
        }
    }
    EXPECT_TRUE(tool.has(first) && tool.has("/Books/book.pdf"));
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
}

TEST_F(ProgramMediaTest, WrongUseIsTold)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong{
        { { "media" }, "an action is missing; one of: list, export, delete" },
        { { "media", "--json" }, "an action is missing; one of: list, export, delete" },
        { { "media", "--to", "export" }, "an action is missing; one of: list, export, delete" },
        { { "media", "--yes", "list", "UDID" }, "option '--yes' belongs to the command 'media delete' only" },
        { { "media", "copy" }, "unknown action 'copy'; one of: list, export, delete" },
        { { "media", "list" }, "the identifier of a device is missing; 'korvane-cli devices' shows it" },
        { { "media", "list", "" }, "the identifier of a device is missing; 'korvane-cli devices' shows it" },
        { { "media", "list", "", "UDID" }, "the identifier of a device is missing; 'korvane-cli devices' shows it" },
        { { "media", "export", "", "UDID", first },
            "the identifier of a device is missing; 'korvane-cli devices' shows it" },
        { { "media", "delete", "", first, second, "--yes" },
            "the identifier of a device is missing; 'korvane-cli devices' shows it" },
        { { "media", "list", "UDID", "x" }, "unexpected argument 'x'" },
        { { "media", "list", "UDID", "--yes" }, "option '--yes' belongs to the command 'media delete' only" },
        { { "media", "export", "UDID" },
            "the path of a file on the device is missing; 'korvane-cli media list' lists them" },
        { { "media", "delete", "UDID", "/a", "--to", "/b" },
            "option '--to' belongs to the command 'media export' only" },
        { { "media", "export", "UDID", "/a", "--to" }, "option '--to' needs one folder" },
        { { "media", "export", "UDID", "/a", "--to=" }, "option '--to' needs one folder" },
        { { "media", "export", "UDID", "/a", "--to=/b", "--to=/c" }, "option '--to' needs one folder" },
        { { "media", "export", "UDID", "-rf" }, "unknown option '-rf'; --help lists the options there are" },
    };
    for (const auto& [arguments, message] : wrong) {
        EXPECT_EQ(runHere(arguments), ExitStatus::WrongUse) << message;
        EXPECT_EQ(errors, "korvane-cli: " + message + "\n");
    }
    EXPECT_EQ(tool.runs(), 0U);
}

} // namespace Korvane
