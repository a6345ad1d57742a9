// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/Devices/MediaFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/TestProcessRunner.h"

namespace Korvane {

namespace {

class MediaListingTest : public MediaFixture { };

} // namespace

TEST_F(MediaListingTest, FoldersAndFilesAreListedInTheOrderOfTheTool)
{
    tool().add("/DCIM/100APPLE/IMG_1.HEIC");
    tool().add("/DCIM/100APPLE/IMG_1.AAE");
    tool().add("/DCIM/101APPLE/IMG 2.MOV");
    tool().add("/DCIM/Info.plist");
    std::filesystem::create_directory(tool().rules.device / "DCIM/102EMPTY");
    const std::vector<IOSMediaFolder> expected{
        { "/DCIM/100APPLE", "100APPLE",
            { { "/DCIM/100APPLE/IMG_1.AAE", "IMG_1.AAE" }, { "/DCIM/100APPLE/IMG_1.HEIC", "IMG_1.HEIC" } } },
        { "/DCIM/101APPLE", "101APPLE", { { "/DCIM/101APPLE/IMG 2.MOV", "IMG 2.MOV" } } },
    };
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        tool().forget();
        EXPECT_EQ(list(), expected) << style;
        const Paths log{ "run -u " + udid, "ls /DCIM", "quit", "run -u " + udid, "ls /DCIM/100APPLE", "quit",
            "run -u " + udid, "ls /DCIM/101APPLE", "quit", "run -u " + udid, "ls /DCIM/102EMPTY", "quit" };
        EXPECT_EQ(tool().log(), log) << style;
    }
}

TEST_F(MediaListingTest, CameraRollWithoutFoldersIsEmpty)
{
    EXPECT_TRUE(list().empty());
    EXPECT_EQ(tool().runs(), 1U);
    std::filesystem::remove(tool().rules.device / "DCIM");
    EXPECT_TRUE(list().empty());
}

TEST_F(MediaListingTest, MissingToolIsToldBeforeAnythingRuns)
{
    std::filesystem::remove(folder() / "local/bin/afcclient");
    const auto expectMissing = [](const auto& work) {
        try {
            work();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const MediaError& error) {
            EXPECT_EQ(error.kind(), MediaError::Kind::ToolMissing);
            EXPECT_STREQ(error.what(), "afcclient not found — install libimobiledevice");
        }
    };
    expectMissing([&] { list(); });
    expectMissing([&] { manager().remove({ "/DCIM/a/b" }, udid, {}); });
    expectMissing([&] { manager().remove({}, udid, {}); });
    expectMissing([&] { manager().exportFile(file("/DCIM/a/.."), udid, downloads(), {}); });
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaListingTest, ToolThatCannotBeStartedIsThePlatformsError)
{
    std::filesystem::remove(folder() / "local/bin/afcclient");
    writeFile(folder() / "local/bin/afcclient",
        "\x7f"
        "ELF, but not really");
    std::filesystem::permissions(folder() / "local/bin/afcclient", std::filesystem::perms(0755));
    EXPECT_THROW(list(), FileError);
}

TEST_F(MediaListingTest, NamesThatLookLikeWhatTheToolSaysAreNoFiles)
{
    for (const char* name : { "quit", "IMG\x1b[31m.JPG", "tab\there.JPG", "two\nlines.JPG", "IMG_1.JPG" })
        tool().add(std::string("/DCIM/100APPLE/") + name);
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        EXPECT_EQ(
            listedPaths(), (Paths{ "/DCIM/100APPLE/IMG_1.JPG", "/DCIM/100APPLE/two", "/DCIM/100APPLE/lines.JPG" }))
            << style;
    }
}

TEST_F(MediaListingTest, NamesAreBytesThatAreSentBackExactly)
{
    change([](auto& rules) { rules.reading = "line"; });
    const std::string odd = "caf\xC3\xA9 \xE2\x80\xAE'\"\\ -rf.jpg";
    tool().add("/DCIM/1\xC3\xA9/" + odd);
    EXPECT_EQ(listedPaths(), (Paths{ "/DCIM/1\xC3\xA9/" + odd }));
    EXPECT_EQ(tool().log()[4], "ls /DCIM/1\xC3\xA9");
}

TEST_F(MediaListingTest, WhatIsNoUtf8GivesNoNames)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    tool().add("/DCIM/100APPLE/a\xFF.jpg");
    tool().add("/DCIM/101APPLE/b.jpg");
    EXPECT_EQ(listedPaths(), (Paths{ "/DCIM/101APPLE/b.jpg" }));
}

TEST_F(MediaListingTest, MegabytesAreReadToTheirEnd)
{
    tool().add("/DCIM/100APPLE/IMG_1.JPG");
    change([](auto& rules) { rules.flood = 20; });
    EXPECT_EQ(listedPaths(), (Paths{ "/DCIM/100APPLE/IMG_1.JPG" }));
}

TEST_F(MediaListingTest, ListingWithoutEndIsAnError)
{
    change([](auto& rules) { rules.flood = 70; });
    try {
        list();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const MediaError& error) {
        EXPECT_STREQ(error.what(), "The listing of /DCIM is too long");
    }
}

TEST_F(MediaListingTest, ToolThatBreaksGivesWhatItSaid)
{
    tool().add("/DCIM/100APPLE/IMG_1.JPG");
    change([](auto& rules) { rules.breaks = "ls"; });
    EXPECT_TRUE(list().empty());
    change([](auto& rules) {
        rules.breaks = "";
        rules.dies = "ls";
    });
    EXPECT_EQ(listedPaths(), (Paths{ "/DCIM/IMG_00/IMG_00" }));
}

TEST_F(MediaListingTest, ProgressGoesByFolder)
{
    for (const char* name : { "100APPLE", "101APPLE", "102APPLE" })
        tool().add(std::string("/DCIM/") + name + "/IMG_1.JPG");
    std::vector<std::pair<std::size_t, std::size_t>> steps;
    manager().listMedia(udid, [&](std::size_t done, std::size_t folders) { steps.emplace_back(done, folders); });
    const std::vector<std::pair<std::size_t, std::size_t>> expected{ { 0, 3 }, { 1, 3 }, { 2, 3 }, { 3, 3 } };
    EXPECT_EQ(steps, expected);
}

TEST_F(MediaListingTest, CancelledBetweenTwoFoldersItEnds)
{
    for (const char* name : { "100APPLE", "101APPLE", "102APPLE" })
        tool().add(std::string("/DCIM/") + name + "/IMG_1.JPG");
    const Cancellation cancellation;
    const auto cancelAtSecond = [&](std::size_t done, std::size_t) {
        if (done == 1)
            cancellation.cancel();
    };
    EXPECT_THROW(manager().listMedia(udid, cancelAtSecond, cancellation), CancellationError);
    EXPECT_EQ(tool().runs(), 2U);
    EXPECT_THROW(list(cancellation), CancellationError);
    EXPECT_EQ(tool().runs(), 2U);
}

TEST_F(MediaListingTest, ToolThatHangsIsEndedByACancel)
{
    for (const char* command : { "start", "ls" }) {
        change([&](auto& rules) { rules.hangs = command; });
        EXPECT_TRUE(isCancelled([&](const auto& cancellation) { list(cancellation); })) << command;
        std::filesystem::remove(tool().rules.begun);
    }
}

TEST_F(MediaListingTest, FiftyThousandFilesInTwoHundredFoldersTakeOneRunEach)
{
    constexpr int folders = 200, files = 250;
    auto runner = std::make_shared<TestProcessRunner>();
    runner->answer = [](const ChildProcess& process, const Cancellation&) {
        const bool isTop = process.input == "ls /DCIM\nquit\n";
        ChildResult result = TestProcessRunner::exited(0);
        for (int number = 0; number < (isTop ? folders : files); ++number)
            result.output.text
                += isTop ? std::to_string(100 + number) + "APPLE/\n" : "IMG 0" + std::to_string(number) + ".HEIC\n";
        return result;
    };
    host().processes = runner;
    const auto listing = list();
    ASSERT_EQ(listing.size(), folders);
    EXPECT_EQ(listing.back().files.size(), files);
    EXPECT_EQ(listing.back().files.back().path, "/DCIM/299APPLE/IMG 0249.HEIC");
    EXPECT_EQ(runner->calls().size(), folders + 1U);
    Paths paths;
    for (const auto& folder : listing) {
        for (const auto& entry : folder.files)
            paths.push_back(entry.path);
    }
    // The stand-in lists them still; none is taken for another.
    EXPECT_EQ(manager().remove(paths, udid, listing).size(), paths.size());
    EXPECT_EQ(runner->calls().size(), 2 * folders + 2U);
}

TEST_F(MediaListingTest, OddDeviceIdentifiersAreOneArgument)
{
    for (const char* odd : { "-x", "two words", "$(touch x)", "\xFF", "" }) {
        tool().forget();
        manager().listMedia(odd);
        EXPECT_EQ(tool().log().front(), std::string("run -u ") + odd);
    }
    EXPECT_THROW(manager().listMedia(std::string("a\0b", 3)), FileError);
}

} // namespace Korvane
