// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/TrashInfo.h"

#include "Platform/DisplayText.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/EnvironmentVariable.h"

#include <ctime>
#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(TrashInfoTest, TheRecordIsExact)
{
    EXPECT_EQ(runInChild([] {
        const EnvironmentVariable zone("TZ", "UTC-2");
        tzset();
        return trashInfoText("/home/u/a b", 1'600'000'000);
    }),
        "[Trash Info]\nPath=/home/u/a%20b\nDeletionDate=2020-09-13T14:26:40\n");
}

TEST(TrashInfoTest, OnlyPlainCharactersStayAsTheyAre)
{
    EXPECT_EQ(percentEncoded("AZaz09-._~/"), "AZaz09-._~/");
    EXPECT_EQ(percentEncoded("%\n\xFF=+"), "%25%0A%FF%3D%2B");
}

TEST(TrashInfoTest, NamesAreCutBetweenCharacters)
{
    EXPECT_EQ(shortenedName("name", 4), "name");
    EXPECT_EQ(shortenedName("name", 3), "nam");
    EXPECT_EQ(shortenedName("aaé", 3), "aa");
    EXPECT_EQ(shortenedName("a𝄞b", 4), "a");
    EXPECT_EQ(shortenedName("a𝄞b", 5), "a𝄞");
}

TEST(TrashInfoTest, BytesThatAreNoTextAreCutAnywhere)
{
    EXPECT_EQ(shortenedName("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
    EXPECT_EQ(shortenedName("\x80\x80", 1), "\x80");
}

TEST(TrashInfoTest, ACutNameOfTextIsText)
{
    std::string name;
    for (int i = 0; i < 40; ++i)
        name += "aé€𝄞";
    for (std::size_t limit = 10; limit < name.size(); ++limit) {
        EXPECT_TRUE(isValidUtf8(shortenedName(name, limit))) << limit;
        EXPECT_GT(shortenedName(name, limit).size() + 4, limit);
    }
}

} // namespace
} // namespace Korvane
