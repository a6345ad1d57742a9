// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TrimmedText.h"

#include <gtest/gtest.h>

#include <string>

namespace Korvane {
namespace {

TEST(TrimmedText, LosesBlanksAndLineEndsAtBothEndsOnly)
{
    EXPECT_EQ(trimmedText(" \t\r\n\v\fone two\nthree \n\n"), "one two\nthree");
    EXPECT_EQ(trimmedText("word"), "word");
    EXPECT_EQ(trimmedText(""), "");
    EXPECT_EQ(trimmedText(" \n "), "");
}

TEST(TrimmedText, KnowsTheBlanksOfUnicode)
{
    EXPECT_EQ(trimmedText("\u00A0\u1680\u2003\u2028word\u2029\u202F\u205F\u3000\u0085"), "word");
    // What takes no room is no blank.
    EXPECT_EQ(trimmedText("\uFEFFword\u2060"), "\uFEFFword\u2060");
}

TEST(TrimmedText, LeavesBytesThatAreNoText)
{
    EXPECT_EQ(trimmedText(" \x85\xA0 "), "\x85\xA0");
    const std::string blanks(1'000'000, ' ');
    EXPECT_EQ(trimmedText(blanks + "x" + blanks), "x");
}

} // namespace
} // namespace Korvane
