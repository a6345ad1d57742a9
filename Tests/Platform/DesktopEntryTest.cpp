// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/DesktopEntry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> argumentsOfExec(const std::string& exec)
{
    const auto entry = parseDesktopEntry("[Desktop Entry]\nType=Application\nExec=" + exec + "\n");
    return entry ? entry->arguments : std::vector<std::string>{ "no entry" };
}

TEST(DesktopEntry, ReadsTheKeysOfItsMainGroupOnly)
{
    const auto entry = parseDesktopEntry("# a comment\n\n[Desktop Entry]\r\nType = Application\nName=Editor\n"
                                         "Name[de]=Editor\nExec=editor %F\nStartupWMClass=Editor\n"
                                         "[Desktop Action new]\nExec=other --new\nHidden=true\n");
    ASSERT_TRUE(entry);
    EXPECT_THAT(entry->arguments, ElementsAre("editor"));
    EXPECT_EQ(entry->startupWmClass, "Editor");
    EXPECT_FALSE(entry->isHidden);
}

TEST(DesktopEntry, TakesTheFirstOfTwoEqualKeys)
{
    const auto entry = parseDesktopEntry("[Desktop Entry]\nType=Application\nExec=one\nExec=two\n");
    EXPECT_THAT(entry->arguments, ElementsAre("one"));
}

TEST(DesktopEntry, IsNoneForLinksDirectoriesAndOtherText)
{
    EXPECT_FALSE(parseDesktopEntry(""));
    EXPECT_FALSE(parseDesktopEntry("Type=Application\nExec=editor\n"));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Link\nURL=http://example.org\n"));
    EXPECT_FALSE(parseDesktopEntry("[Other]\nType=Application\n"));
    EXPECT_FALSE(parseDesktopEntry(std::string("\0\xFF[[[===\n\n=\n[\n", 14)));
    EXPECT_FALSE(parseDesktopEntry(std::string(100'000, '=')));
}

TEST(DesktopEntry, KnowsThatItWasHidden)
{
    EXPECT_TRUE(parseDesktopEntry("[Desktop Entry]\nType=Application\nHidden=true\n")->isHidden);
}

TEST(DesktopEntry, TakesACommandLineApart)
{
    EXPECT_THAT(argumentsOfExec("editor --new-window  %U"), ElementsAre("editor", "--new-window"));
    EXPECT_THAT(argumentsOfExec("\"/opt/My Editor/run\" --say \"a \\\"b\\\" \\$c\""),
        ElementsAre("/opt/My Editor/run", "--say", "a \"b\" $c"));
    EXPECT_THAT(argumentsOfExec("/opt/My\\sEditor"), ElementsAre("/opt/My", "Editor"));
    EXPECT_THAT(argumentsOfExec("show 100%% --name=%c %k"), ElementsAre("show", "100%", "--name="));
}

TEST(DesktopEntry, HasNoArgumentsWhenTheCommandLineIsBroken)
{
    EXPECT_THAT(argumentsOfExec("\"never closed"), IsEmpty());
    EXPECT_THAT(argumentsOfExec(""), IsEmpty());
    EXPECT_THAT(argumentsOfExec("%f"), IsEmpty());
    EXPECT_THAT(argumentsOfExec("editor %"), ElementsAre("editor"));
    EXPECT_THAT(argumentsOfExec("editor \\"), ElementsAre("editor", "\\"));
}

} // namespace
} // namespace Korvane
