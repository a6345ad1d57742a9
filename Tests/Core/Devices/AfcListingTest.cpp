// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcListing.h"

#include "Core/Devices/AfcAnswer.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

using Names = std::vector<std::string>;

const std::string promptOfTop = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/\x1b[m";
const std::string promptOfFolder = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/DCIM\x1b[m";

/// The prompt as builds print it.
class AfcPrompt : public testing::TestWithParam<std::string> {
protected:
    const std::string prompt = GetParam();
};

/// What a listing of "/DCIM" in this output gives.
Names listed(const std::string& output) { return credibleNames(parseNames(output), { "ls /DCIM", "quit" }); }

AfcAnswer calm(const std::string& output) { return { output, AfcAnswer::Ending::Calm }; }

} // namespace

TEST(AfcListing, EachLineIsANameInItsOrder)
{
    EXPECT_EQ(parseNames("100APPLE/\n101APPLE\n.\n..\nInfo.plist\n"), (Names{ "100APPLE", "101APPLE", "Info.plist" }));
    EXPECT_EQ(parseNames("b\n\n\na"), (Names{ "b", "a" }));
    EXPECT_EQ(parseNames(""), Names());
    EXPECT_EQ(parseNames("\n\n \t \n"), Names());
}

TEST(AfcListing, PromptAndBlanksAroundANameAreTakenAway)
{
    EXPECT_EQ(parseNames("afc:/> IMG_1.JPG"), (Names{ "IMG_1.JPG" }));
    EXPECT_EQ(parseNames(" \t IMG 1.JPG \t"), (Names{ "IMG 1.JPG" }));
    EXPECT_EQ(parseNames("a > b >  c.jpg "), (Names{ "c.jpg" }));
    EXPECT_EQ(parseNames("a>b.jpg\nc>"), (Names{ "a>b.jpg", "c>" }));
    EXPECT_EQ(parseNames("afc> .\nafc> ..\nafc> Error\nafc> "), Names({ "afc>" }));
}

TEST(AfcListing, ErrorsAndLinesWithAColonAreNoNames)
{
    EXPECT_EQ(parseNames("Error: Object not found (8)\nErrors.jpg\nfoo: bar\na:b.jpg\nerror.jpg"),
        (Names{ "a:b.jpg", "error.jpg" }));
}

TEST(AfcListing, OnlyOneSlashIsTakenAway)
{
    EXPECT_EQ(parseNames("a//\nb/c\n"), (Names{ "a/", "b/c" }));
    EXPECT_EQ(listed("a//\nb/c\nd/\n/\n./\n../\n"), (Names{ "d" }));
}

TEST_P(AfcPrompt, BothBuildsGiveTheNamesAlone)
{
    EXPECT_EQ(listed(prompt + "100APPLE\n101APPLE\n" + prompt), (Names{ "100APPLE", "101APPLE" }));
    EXPECT_EQ(listed(prompt + "ls /DCIM\n100APPLE\n101APPLE\n" + prompt + "quit\n"), (Names{ "100APPLE", "101APPLE" }));
    EXPECT_EQ(listed(prompt + prompt), Names());
    EXPECT_EQ(listed(prompt + "ls /DCIM\n" + prompt + "quit"), Names());
}

TEST(AfcListing, WhatHoldsAControlCharacterIsNoName)
{
    for (const char* name : { "a\x1b[m", "a\tb", "\x01", "a\x7f", "a\rb", "a\xC2\x80", "a\xC2\x9F" })
        EXPECT_EQ(listed(std::string("x\n") + name + "\ny"), (Names{ "x", "y" })) << name;
    const std::string text = "caf\xC3\xA9 \xC2\xA0 \xE4\xB8\x8B.jpg";
    EXPECT_EQ(listed(text), (Names{ text }));
}

TEST(AfcListing, WhatEqualsACommandOfTheScriptIsNoName)
{
    EXPECT_EQ(listed("quit\nquit.jpg\n"), (Names{ "quit.jpg" }));
    EXPECT_EQ(credibleNames({ "ls", "quit", "a" }, { "ls" }), (Names{ "quit", "a" }));
}

TEST(AfcListing, OnlyWhatIsShownAsItIsCanBeMissed)
{
    for (const char* name : { "IMG_1.JPG", "IMG 1.JPG", "-rf", "...", "a:b" })
        EXPECT_TRUE(isListedAsItself(name)) << name;
    for (const char* name : { "", ".", "..", " a", "a ", "a> b", "Error.jpg", "a: b", "quit", "a/", "a\nb", "a\tb" })
        EXPECT_FALSE(isListedAsItself(name)) << name;
}

TEST_P(AfcPrompt, ErrorsAreLinesThatBeginSo)
{
    using Errors = std::vector<std::string>;
    EXPECT_EQ(calm("Error: one\nx\n" + prompt + "Error: two\n").errors(), (Errors{ "one", "two" }));
    EXPECT_EQ(calm("\r11% (427.5 MB/s)   \r22% (1.0 MB/s)   Error: three\n").errors(), (Errors{ "three" }));
    EXPECT_EQ(calm("\r22% (1.0 MB/s)   \rError: four> five\n").errors(), (Errors{ "four> five" }));
    EXPECT_EQ(calm("\r99%Error: six").errors(), (Errors{ "six" }));
    EXPECT_EQ(calm("a\rb\n99%Error: x\nIMG (1)Error: x.JPG\n").errors(), Errors());
    EXPECT_EQ(calm("\xFF\nError: not a text\n").errors(), (Errors{ "not a text" }));
    EXPECT_EQ(calm("Errors.jpg\nNo Error: here\n" + prompt + "get /a Error: b\n").errors(), Errors());
}

TEST_P(AfcPrompt, ProgressIsAShareBehindACarriageReturn)
{
    EXPECT_TRUE(calm("\r11% (427.5 MB/s)   \r22% ").showsProgress());
    EXPECT_TRUE(calm(prompt + "get a b\n\r\r100%\n").showsProgress());
    for (const char* output : { "", "11%", "\r", "\r%", "\r11", "\r11 %", "a%\r\n12%" })
        EXPECT_FALSE(calm(output).showsProgress()) << output;
}

TEST_P(AfcPrompt, AnswerIsWholeUpToTheLast)
{
    EXPECT_TRUE(calm("").isWhole());
    EXPECT_TRUE(calm("a\nb\n").isWhole());
    EXPECT_TRUE(calm(prompt + "a\n" + prompt).isWhole());
    EXPECT_TRUE(calm(prompt + "ls /DCIM\n" + prompt + "quit\n").isWhole());
    EXPECT_TRUE(calm(prompt + prompt).isWhole());
    EXPECT_FALSE(calm(prompt).isWhole());
    EXPECT_FALSE(calm(prompt + "a\nIMG_00").isWhole());
    EXPECT_FALSE(calm(prompt + "ls /DCIM\n").isWhole());
    EXPECT_FALSE(calm(prompt + "a\n" + prompt + "b\nIMG_00").isWhole());
    EXPECT_TRUE(calm(prompt).hasPrompt());
    EXPECT_FALSE(AfcAnswer(prompt, AfcAnswer::Ending::Abrupt).isWhole());
    EXPECT_FALSE(AfcAnswer(prompt, AfcAnswer::Ending::CutOff).isWhole());
}

INSTANTIATE_TEST_SUITE_P(Forms, AfcPrompt,
    testing::Values(promptOfTop + "> ", promptOfTop + " > ", promptOfFolder + "> ", promptOfFolder + " > "));

TEST(AfcAnswer, WhatIsNotAllOfAPromptIsNone)
{
    for (const auto& text : { std::string("afc:/> "), promptOfTop, promptOfTop + "  ", promptOfTop + "\n> ",
             promptOfTop + " x> ", promptOfTop.substr(0, promptOfTop.size() - 3) + "\n\x1b[m> " })
        EXPECT_FALSE(calm(text).hasPrompt()) << text;
    EXPECT_TRUE(calm(promptOfTop + promptOfTop + "> ").hasPrompt());
}

TEST(AfcAnswer, ErrorsAreReadWithoutWhatTheyRepeat)
{
    using Errors = std::vector<std::string>;
    const auto answer = calm("Error: No '/a/exist' in /a\nError: /a/a\n");
    EXPECT_EQ(answer.errorsWithout({ "/a", "/a/exist", "" }), (Errors{ "No '' in ", "" }));
    EXPECT_EQ(answer.errorsWithout({}), answer.errors());
}

TEST(AfcAnswer, WhatIsNoUtf8IsNoText)
{
    EXPECT_EQ(calm("a\n\xFF\n").text(), "");
    EXPECT_FALSE(calm("a\n\xFF\n").isText());
    EXPECT_EQ(calm("a\n").text(), "a\n");
}

} // namespace Korvane
