// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Reports.h"

#include <gtest/gtest.h>

namespace Korvane {

TEST(JsonReportsTest, FailuresOfNamesThatAreNoTextAreGivenExactlyToo)
{
    const Cleaner::Result result{ 4096, 1, { { "/a/bad\xff", "no \xff" }, { "/a/good", "gone" } } };
    EXPECT_EQ(resultAsJson(result),
        "{\"cleanedBytes\":4096,\"cleanedCount\":1,\"failures\":["
        "{\"path\":\"/a/bad\uFFFD\",\"pathBase64\":\"L2EvYmFk/w==\",\"message\":\"no \uFFFD\"},"
        "{\"path\":\"/a/good\",\"message\":\"gone\"}]}\n");
}

TEST(JsonReportsTest, PlanSaysWhatWouldBeDoneToEachItem)
{
    const auto step = [](const char* path, Cleaner::Action action) {
        return CleaningPlan::Step{ ScanItem(path, std::nullopt, "Trash", 1, false), action };
    };
    const CleaningPlan plan{ CleanerModule::systemJunk, CommandLine::Selection::All,
        { step("/a", Cleaner::Action::MoveToTrash), step("/b", Cleaner::Action::Delete),
            step("/c", Cleaner::Action::EmptyTrash) },
        {} };
    const auto item = [](const std::string& name, const std::string& action) {
        return "{\"path\":\"/" + name + "\",\"displayName\":\"" + name
            + "\",\"category\":\"Trash\",\"sizeInBytes\":1,\"selectableByDefault\":false,\"action\":\"" + action
            + "\"}";
    };
    EXPECT_EQ(planAsJson(plan),
        "{\"module\":\"systemJunk\",\"dryRun\":true,\"items\":[" + item("a", "moveToTrash") + "," + item("b", "delete")
            + "," + item("c", "emptyTrash") + "],\"totalBytes\":3}\n");
}

TEST(TextReportsTest, FailuresFollowTheirCountWithTheReason)
{
    const Cleaner::Result result{ 0, 0, { { "/a/bad\xff", "Permission denied" } } };
    EXPECT_EQ(resultAsText(result),
        "Zero KB cleaned\n0 items moved to Trash or removed\n1 items could not be removed\n"
        "  /a/bad\uFFFD: Permission denied\n");
}

} // namespace Korvane
