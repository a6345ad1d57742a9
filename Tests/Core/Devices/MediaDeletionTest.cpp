// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcClient.h"
#include "Tests/Core/Devices/MediaDeletionFixture.h"

namespace Korvane {

namespace {

class MediaDeletionTest : public MediaDeletionFixture { };

} // namespace

TEST_F(MediaDeletionTest, ThreeFilesInTwoFoldersTakeThreeRuns)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        for (const auto& path : { first, second, third })
            tool().add(path);
        EXPECT_EQ(remove({ third, first, second }), Paths()) << style;
        const Paths log{ "run -u " + udid, "rm " + third, "rm " + first, "rm " + second, "quit", "run -u " + udid,
            "ls /DCIM/101APPLE", "quit", "run -u " + udid, "ls /DCIM/100APPLE", "quit" };
        EXPECT_EQ(tool().log(), log) << style;
        EXPECT_FALSE(tool().has(first) || tool().has(second) || tool().has(third)) << style;
    }
}

TEST_F(MediaDeletionTest, WhatTheDeviceKeepsIsReturnedInTheGivenOrder)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) {
            rules.style = style;
            rules.keeps = "IMG_1";
        });
        tool().add(second);
        tool().add(third);
        EXPECT_EQ(remove({ third, first, second }), (Paths{ first })) << style;
        change([&](auto& rules) {
            rules.keeps = "";
            rules.ignores = "rm";
        });
        EXPECT_EQ(remove({ first }), (Paths{ first })) << style;
        change([&](auto& rules) { rules.ignores = ""; });
    }
}

TEST_F(MediaDeletionTest, NothingToDeleteIsOneRunThatOnlyQuits)
{
    EXPECT_EQ(remove({}), Paths());
    EXPECT_EQ(tool().log(), (Paths{ "run -u " + udid, "quit" }));
}

TEST_F(MediaDeletionTest, NameWithABlankIsPassedUnquoted)
{
    change([](auto& rules) { rules.reading = "line"; });
    tool().add("/DCIM/100APPLE/IMG 4.JPG");
    tool().add("/DCIM/my photos/IMG 5.JPG");
    EXPECT_EQ(remove({ "/DCIM/100APPLE/IMG 4.JPG", "/DCIM/my photos/IMG 5.JPG" }), Paths());
    EXPECT_EQ(commands(),
        (Paths{ "rm /DCIM/100APPLE/IMG 4.JPG", "rm /DCIM/my photos/IMG 5.JPG", "ls /DCIM/100APPLE",
            "ls /DCIM/my photos" }));
}

TEST_F(MediaDeletionTest, PathWhoseWordsNameAnotherFileIsLeftOut)
{
    for (const char* name : { "IMG_1.JPG copy.JPG", "IMG_'1.JPG", "\"IMG_1.JPG\"", "IMG_1\\.JPG", "IMG_1.JPG\xC3\xA9",
             "x DCIM 100APPLE\xC3\xA9" }) {
        const auto path = std::string("/DCIM/100APPLE/") + name;
        tool().add(path, "another");
        tool().add("/DCIM/100APPLE/x");
        const auto listing = list();
        tool().forget();
        EXPECT_EQ(manager().remove({ path, second }, udid, listing), (Paths{ path })) << name;
        EXPECT_EQ(commands(), (Paths{ "rm " + second, "ls /DCIM/100APPLE" })) << name;
        EXPECT_TRUE(tool().has(path) && tool().has(first)) << name;
        tool().add(second);
        std::filesystem::remove(tool().rules.device / path.substr(1));
    }
}

TEST_F(MediaDeletionTest, PathWhoseWordsNameAnotherOfTheGivenIsLeftOutWithoutAListingToo)
{
    const std::string mistakable = first + " x";
    tool().add(mistakable);
    EXPECT_EQ(manager().remove({ mistakable, first }, udid, {}), (Paths{ mistakable }));
    EXPECT_EQ(commands(), (Paths{ "rm " + first, "ls /DCIM/100APPLE" }));
    EXPECT_TRUE(tool().has(mistakable));
    EXPECT_FALSE(tool().has(first));
}

TEST_F(MediaDeletionTest, FolderIsNotNamedByMistakeEither)
{
    const std::string inOther = "/DCIM/100APPLE old/IMG_9.JPG";
    change([](auto& rules) { rules.reading = "line"; });
    tool().add(inOther);
    EXPECT_EQ(remove({ inOther }), (Paths{ inOther }));
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaDeletionTest, PathThatAScriptCannotHoldNeverEntersOne)
{
    const Paths hostile{ "/DCIM/100APPLE/x\nrm " + first, first + "\n", "/DCIM/100APPLE/a\tb", first + "\r",
        "/DCIM/100APPLE/\x1b[A", "/DCIM/100APPLE/\xC2\x85", "" };
    EXPECT_EQ(manager().remove(hostile, udid, list()), hostile);
    EXPECT_EQ(tool().runs(), 3U);
    EXPECT_TRUE(tool().has(first));
}

TEST_F(MediaDeletionTest, PathThatNoListingWouldShowIsLeftOut)
{
    tool().add("/DCIM/100APPLE/quit");
    const Paths unlisted{ "/DCIM/100APPLE/quit", "/DCIM/100APPLE/../100APPLE/IMG_1.JPG", "/DCIM//100APPLE/IMG_1.JPG",
        first + "/", "-rf", "DCIM/100APPLE/IMG_1.JPG", "/", "/DCIM/100APPLE/Error.JPG", "/DCIM/100APPLE/a> b" };
    EXPECT_EQ(manager().remove(unlisted, udid, list()), unlisted);
    EXPECT_EQ(tool().runs(), 3U);
    EXPECT_TRUE(tool().has("/DCIM/100APPLE/quit") && tool().has(first));
}

TEST_F(MediaDeletionTest, NameThatLooksLikeAnOptionIsAPathAsAnyOther)
{
    tool().add("/DCIM/100APPLE/-rf");
    EXPECT_EQ(remove({ "/DCIM/100APPLE/-rf" }), Paths());
    EXPECT_EQ(commands().front(), "rm /DCIM/100APPLE/-rf");
    EXPECT_TRUE(tool().has(first));
}

TEST_F(MediaDeletionTest, CommandThatTheToolWouldCutIsNotSent)
{
    const auto folder = "/DCIM/100APPLE/" + std::string(longestAfcCommand, 'x');
    const auto longest = folder.substr(0, longestAfcCommand - 3);
    EXPECT_EQ(manager().remove({ longest, longest + "x", first }, udid, {}), (Paths{ longest + "x" }));
    EXPECT_EQ(commands(), (Paths{ "rm " + longest, "rm " + first, "ls /DCIM/100APPLE" }));
}

TEST_F(MediaDeletionTest, QuotesThatAnyOtherClosesDoNotDeleteAnotherFile)
{
    const std::string other = "/DCIM/100APPLE/IMG 1.JPG";
    tool().add(other, "the other");
    const Paths mistakable{ "/DCIM/100APPLE/IMG\" '1.JPG x", "/DCIM/100APPLE/\"IMG 1.JPG' x" };
    for (const auto& path : mistakable)
        tool().add(path);
    change([](auto& rules) { rules.reading = "quotes"; });
    EXPECT_EQ(remove(mistakable), mistakable);
    EXPECT_EQ(tool().runs(), 0U);
    EXPECT_TRUE(tool().has(other));
}

TEST_F(MediaDeletionTest, LongScriptIsWrittenWhileItsOutputIsRead)
{
    constexpr int count = 20'000;
    Paths paths;
    IOSMediaFolder folder{ "/DCIM/100APPLE", "100APPLE", {} };
    for (int number = 0; number < count; ++number) {
        paths.push_back("/DCIM/100APPLE/IMG_" + std::to_string(100'000 + number) + ".HEIC");
        folder.files.push_back(file(paths.back()));
    }
    tool().add(paths.front());
    change([](auto& rules) {
        rules.style = "echo";
        rules.breaks = "rm";
    });
    EXPECT_EQ(manager().remove(paths, udid, { folder }), (Paths{ paths.front() }));
    EXPECT_EQ(commands().size(), count + 1U);
}

TEST_F(MediaDeletionTest, CancelledBeforeItBeginsNothingIsDeleted)
{
    const auto listing = list();
    const Cancellation cancellation;
    cancellation.cancel();
    tool().forget();
    EXPECT_THROW(manager().remove({ first }, udid, listing, cancellation), CancellationError);
    EXPECT_EQ(tool().runs(), 0U);
    EXPECT_TRUE(tool().has(first));
}

TEST_F(MediaDeletionTest, WhatIsStillThereNeedNotBeFoundOut)
{
    const auto listing = list();
    const Cancellation proof;
    proof.cancel();
    tool().forget();
    EXPECT_THROW(manager().remove({ first }, udid, listing, {}, proof), CancellationError);
    EXPECT_EQ(commands(), Paths{ "rm " + first });
    EXPECT_FALSE(tool().has(first));
}

TEST_F(MediaDeletionTest, ToolThatHangsIsEndedByACancel)
{
    const auto listing = list();
    for (const char* command : { "rm", "ls" }) {
        change([&](auto& rules) { rules.hangs = command; });
        EXPECT_TRUE(isCancelled([&](const auto& cancellation) {
            manager().remove({ first }, udid, listing, cancellation);
        })) << command;
        std::filesystem::remove(tool().rules.begun);
    }
    EXPECT_TRUE(tool().has(second) && tool().has(third));
}

} // namespace Korvane
