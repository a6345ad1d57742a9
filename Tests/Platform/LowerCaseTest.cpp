// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/LowerCase.h"

#include <gtest/gtest.h>

namespace Korvane {

TEST(LowerCaseTest, LettersBecomeSmall)
{
    EXPECT_EQ(lowercased(""), "");
    EXPECT_EQ(lowercased("COM.Apple.x-9"), "com.apple.x-9");
    EXPECT_EQ(lowercased("\xC3\x84\xCE\xA9 \xD0\x96"), "\xC3\xA4\xCF\x89 \xD0\xB6");
}

TEST(LowerCaseTest, LanguageOfTheUserHasNoSay) { EXPECT_EQ(lowercased("I\xC3\x84"), "i\xC3\xA4"); }

TEST(LowerCaseTest, BytesThatAreNoTextDoNotDisturbTheRest)
{
    const auto lower = lowercased("A\xff\xC3\x84"
                                  "B");
    EXPECT_EQ(lower.front(), 'a');
    EXPECT_EQ(lower.substr(lower.size() - 3), "\xC3\xA4"
                                              "b");
    EXPECT_GT(lower.size(), 4U);
}

} // namespace Korvane
