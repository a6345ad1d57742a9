// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcWords.h"

#include "Core/Devices/DevicePlaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// Places of a device with these files in two folders.
DevicePlaces places(const std::vector<std::string>& paths)
{
    DevicePlaces known({ { "/DCIM/100APPLE", "100APPLE", { { "/DCIM/100APPLE/IMG_1.JPG", "IMG_1.JPG" } } } });
    for (const auto& path : paths)
        known.add(path);
    return known;
}

} // namespace

TEST(AfcWords, PlainTextIsItself)
{
    EXPECT_THAT(possibleWords("/DCIM/100APPLE/IMG_1.JPG"), ElementsAre("/DCIM/100APPLE/IMG_1.JPG"));
    EXPECT_TRUE(isPlainWord("-rf*?[~;$"));
    for (const char* text : { "", "a b", "a\tb", "a'b", "a\"b", "a\\b", "a\nb", "a\x7f", "a\xC3\xA9" })
        EXPECT_FALSE(isPlainWord(text)) << text;
}

TEST(AfcWords, TextIsSplitAtBlanks)
{
    EXPECT_THAT(possibleWords("/a/IMG 1.JPG"), ElementsAre("/a/IMG", "1.JPG"));
    EXPECT_THAT(possibleWords("  b   a "), ElementsAre("a", "b"));
    EXPECT_TRUE(possibleWords(" \"' ").empty() || !possibleWords(" \"' ").front().empty());
}

TEST(AfcWords, QuotesBackslashesAndOtherBytesMayBeDroppedOrKept)
{
    EXPECT_THAT(possibleWords("a'b"), testing::IsSupersetOf({ "a'b", "ab" }));
    EXPECT_THAT(possibleWords("a\\b"), testing::IsSupersetOf({ "a\\b", "ab" }));
    EXPECT_THAT(possibleWords("caf\xC3\xA9"), testing::IsSupersetOf({ "caf\xC3\xA9", "caf" }));
    EXPECT_THAT(possibleWords("\"a\xC3\xA9\\b\" c"), testing::IsSupersetOf({ "ab", "c" }));
    EXPECT_THAT(possibleWords("'a b' c"), testing::IsSupersetOf({ "a b", "a", "b", "c" }));
    EXPECT_THAT(possibleWords("a\\ b"), testing::IsSupersetOf({ "a b", "a", "b" }));
    EXPECT_THAT(possibleWords("a\\ b"), Not(Contains("")));
}

TEST(AfcWords, AnyQuoteMayCloseAnother)
{
    EXPECT_THAT(possibleWords("/a/IMG\" '1.JPG x"), testing::IsSupersetOf({ "/a/IMG 1.JPG", "x" }));
    EXPECT_THAT(possibleWords("/a/\"IMG 1.JPG' x"), testing::IsSupersetOf({ "/a/IMG 1.JPG", "x" }));
    EXPECT_THAT(possibleWords("'a\" b\" c"), testing::IsSupersetOf({ "a", "b c", "a b c" }));
}

TEST(AfcWords, BackslashMayEscapeOrNot)
{
    EXPECT_THAT(possibleWords("\"a\\\" b\" c"), testing::IsSupersetOf({ "a b", "c", "a", "b c" }));
}

TEST(DevicePlaces, PlainPathNamesNothingElse)
{
    EXPECT_FALSE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_1.JPG"));
    EXPECT_FALSE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_2.JPG"));
}

TEST(DevicePlaces, BlankThatNamesNothingElseIsNoDanger)
{
    EXPECT_FALSE(places({ "/DCIM/100APPLE/IMG 1.JPG" }).areNamedInPlaceOf("/DCIM/100APPLE/IMG 1.JPG"));
    EXPECT_FALSE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/caf\xC3\xA9.JPG"));
}

TEST(DevicePlaces, WordThatNamesAnotherFileIsADanger)
{
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_1.JPG (1).JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_1.\"JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IM'G_1.JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_1\\.JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/IMG_1\xC3\xA9.JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/\"IMG_1\xC3\xA9.JPG\" x"));
    EXPECT_TRUE(places({ "/DCIM/100APPLE/a b" }).areNamedInPlaceOf("/DCIM/100APPLE/a\\ b"));
}

TEST(DevicePlaces, WordMayNameItByAnotherWayOrFromTheTopOfTheDevice)
{
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/x DCIM/100APPLE/IMG_1.JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/x //DCIM/./y/../100APPLE//IMG_1.JPG/"));
}

TEST(DevicePlaces, FoldersAndWhatHoldsThemAreKnownToo)
{
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE old/IMG_2.JPG"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/.. x"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/a . b"));
    EXPECT_TRUE(places({}).areNamedInPlaceOf("/DCIM/100APPLE/\xC3\xA9"));
}

TEST(DevicePlaces, ThoseAroundAPathAnswerAsTheWholeListing)
{
    std::vector<IOSMediaFolder> listing;
    for (const char* folder : { "/DCIM/100APPLE", "/DCIM/101 APPLE", "/DCIM/\xC3\xA9" }) {
        listing.push_back({ folder, std::string(folder).substr(6), {} });
        for (const char* name : { "IMG_1.JPG", "IMG 2.JPG", "'x'", "caf\xC3\xA9" })
            listing.back().files.push_back({ std::string(folder) + "/" + name, name });
    }
    const DevicePlaces whole(listing);
    int named = 0;
    for (const auto& folder : listing) {
        for (const char* name : { "IMG_1.JPG", "IMG_1.JPG x", "IMG\" '2.JPG", "'x'", "x", "caf", "a ../DCIM/x",
                 "b /DCIM/./100APPLE//IMG_1.JPG", "b /DCIM/..", "b DCIM/101",
                 "IMG_\xC3\xA9"
                 "1.JPG" }) {
            const auto path = folder.path + "/" + name;
            EXPECT_EQ(DevicePlaces::around(path, listing).areNamedInPlaceOf(path), whole.areNamedInPlaceOf(path))
                << path;
            named += whole.areNamedInPlaceOf(path) ? 1 : 0;
        }
    }
    EXPECT_GT(named, 5);
}

TEST(DevicePlaces, PathThatAListingShowsIsAbsoluteAndPlainlyWritten)
{
    EXPECT_TRUE(isListedDevicePath("/DCIM/100APPLE/IMG 1.JPG"));
    EXPECT_TRUE(isListedDevicePath("/DCIM/100APPLE/-rf"));
    for (const char* path : { "", "/", "-rf", "DCIM/a", "/DCIM//a", "/DCIM/a/", "/DCIM/./a", "/DCIM/../a",
             "/DCIM/100APPLE/a\nrm /DCIM/100APPLE/b", "/DCIM/a\tb", "/DCIM/a> b", "/DCIM/quit", "/DCIM/a " })
        EXPECT_FALSE(isListedDevicePath(path)) << path;
    EXPECT_EQ(deviceFolderOf("/DCIM/100APPLE/a"), "/DCIM/100APPLE");
}

} // namespace Korvane
