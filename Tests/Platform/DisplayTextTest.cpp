// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DisplayText.h"

#include <gtest/gtest.h>

#include <string>

namespace Korvane {
namespace {

using namespace std::string_literals;

TEST(DisplayText, LeavesOrdinaryNamesAlone)
{
    EXPECT_EQ(displayText("report.pdf"s), "report.pdf");
    EXPECT_EQ(displayText(""s), "");
    EXPECT_EQ(displayText("Grüße 日本語 👩‍👩‍👧.txt"s), "Grüße 日本語 👩‍👩‍👧.txt");
    EXPECT_EQ(displayText(std::filesystem::path("/home/a b/ü")), "/home/a b/ü");
}

TEST(DisplayText, MarksEachByteThatBeginsNothing)
{
    EXPECT_EQ(displayText("a\xFF\xFE"s + "b"), "a\uFFFD\uFFFDb");
    EXPECT_EQ(displayText("\x80"s), "\uFFFD");
    EXPECT_EQ(displayText("caf\xE9"s), "caf\uFFFD");
}

TEST(DisplayText, MarksTheMaximalPartOfABrokenCharacterOnce)
{
    // The Unicode standard's own example, table 3-8 and those around it.
    EXPECT_EQ(displayText("\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64"s),
        "a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd");
    EXPECT_EQ(
        displayText("\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41"s), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(displayText("\xED\xA0\x80\x41"s), "\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(displayText("\xF4\x91\x92\x93\xFF\x41"s), "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(displayText("\xE2\x82"s), "\uFFFD");
}

TEST(DisplayText, ShowsControlsAsTheirPictures)
{
    EXPECT_EQ(displayText("a\nb\tc\r"s), "a␊b␉c␍");
    EXPECT_EQ(displayText("\x1B[31m\x7F"s), "␛[31m␡");
    EXPECT_EQ(displayText("\0"s), "␀");
}

TEST(DisplayText, NamesWhatHasNoPicture)
{
    EXPECT_EQ(displayText("\u0085\u009B"s), "[U+0085][U+009B]");
    EXPECT_EQ(displayText("one\u2028two\u2029three"s), "one[U+2028]two[U+2029]three");
}

TEST(DisplayText, NamesWhatCannotBeSeen)
{
    EXPECT_EQ(displayText("\uFEFFreport"s), "[U+FEFF]report");
    EXPECT_EQ(displayText("re\u00ADport\u200B.\u2060txt"s), "re[U+00AD]port[U+200B].[U+2060]txt");
}

TEST(DisplayText, ShowsWhatTurnsTheDirectionOfWriting)
{
    EXPECT_EQ(displayText("invoice\u202Efdp.exe"s), "invoice[U+202E]fdp.exe");
    EXPECT_EQ(displayText("\u202A\u202B\u202C\u202D"s), "[U+202A][U+202B][U+202C][U+202D]");
    EXPECT_EQ(displayText("\u2066\u2067\u2068\u2069"s), "[U+2066][U+2067][U+2068][U+2069]");
    EXPECT_EQ(displayText("\u200E\u200F\u061C"s), "[U+200E][U+200F][U+061C]");
}

TEST(DisplayText, IsValidUtf8ForEveryPairOfBytes)
{
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const std::string bytes{ static_cast<char>(first), static_cast<char>(second), 'x' };
            const auto text = displayText(bytes);
            ASSERT_TRUE(isValidUtf8(text)) << first << ' ' << second;
            ASSERT_EQ(text.find('\n'), std::string::npos);
        }
}

TEST(IsValidUtf8, AcceptsEveryCharacterAndNothingElse)
{
    EXPECT_TRUE(isValidUtf8(""));
    EXPECT_TRUE(isValidUtf8("\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"));
    EXPECT_FALSE(isValidUtf8("\xC1\xBF"));
    EXPECT_FALSE(isValidUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isValidUtf8("\xF0\x8F\xBF\xBF"));
    EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(isValidUtf8("abc\xE2\x82"));
}

} // namespace
} // namespace Korvane
