// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Background/UserUnits.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(UserUnits, ProgramIsTheFirstThatAServiceStarts)
{
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=/bin/a -x\nExecStart=/bin/b\n"), "/bin/a");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=\nExecStart = /bin/b"), "/bin/b");
    EXPECT_EQ(programOfUnit("[Service]\r\nExecStart=+!-@/bin/c c\r\n"), "/bin/c");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart='/opt/a b/run' x\n"), "/opt/a b/run");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=\"unclosed quote\n"), "unclosed quote");
}

TEST(UserUnits, LineThatEndsWithABackslashGoesOn)
{
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=\\\n  /bin/a \\\n  -x\n"), "/bin/a");
    EXPECT_EQ(programOfUnit("[Service]\r\nExecStart=\\\r\n/bin/b\r\n"), "/bin/b");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=\\\n# between\n ; them\n/bin/c\n"), "/bin/c");
    EXPECT_EQ(programOfUnit("[Service]\nDescription=a \\\nExecStart=/bin/no\nExecStart=/bin/d\n"), "/bin/d");
    EXPECT_EQ(programOfUnit("[Service]\nDescription=a\\\\\nExecStart=/bin/e\n"), "/bin/e");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=\\"), std::nullopt);
}

TEST(UserUnits, NothingTakesBackWhatWasStatedBefore)
{
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=/bin/old\nExecStart=\nExecStart=/bin/new\n"), "/bin/new");
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=/bin/old\nExecStart= \n"), std::nullopt);
}

TEST(UserUnits, WhatStartsNothingHasNoProgram)
{
    for (const char* text : { "", "[Service]\n", "ExecStart=/bin/a\n", "[Unit]\nExecStart=/bin/a\n",
             "[Service]\n#ExecStart=/bin/a\nExecStartPre=/bin/b\nExecStart\n", "[Service]\nExecStart=-\n" })
        EXPECT_EQ(programOfUnit(text), std::nullopt) << text;
}

TEST(UserUnits, HostileTextEndsAndIsShownAsText)
{
    EXPECT_EQ(programOfUnit("[Service]\nExecStart=/bin/\xff\033x\n"), "/bin/\uFFFD\u241Bx");
    EXPECT_EQ(programOfUnit(std::string(1'000'000, '=')), std::nullopt);
    EXPECT_EQ(programOfUnit("[Service]\n" + std::string(1'000'000, '\n')), std::nullopt);
    std::string endless = "[Service]\n";
    for (int count = 0; count < 500'000; ++count)
        endless += "\\\n";
    EXPECT_EQ(programOfUnit(endless), std::nullopt);
}

} // namespace
} // namespace Korvane
