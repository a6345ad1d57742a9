// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ReadingBudget.h"

#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace Korvane {
namespace {

TEST(ReadingBudget, ReadsWholeFilesUpToTheLargest)
{
    const TemporaryFolder folder;
    writeFile(folder / "largest", ReadingBudget::largestFile);
    writeFile(folder / "larger", ReadingBudget::largestFile + 1);
    writeFile(folder / "empty", "");
    ReadingBudget budget;
    EXPECT_EQ(budget.contents(folder / "largest").value_or("").size(), ReadingBudget::largestFile);
    EXPECT_EQ(budget.contents(folder / "larger"), std::nullopt);
    EXPECT_EQ(budget.contents(folder / "empty"), "");
    EXPECT_EQ(budget.contents(folder / "missing"), std::nullopt);
    EXPECT_EQ(budget.contents(folder.path()), std::nullopt);
}

TEST(ReadingBudget, IsSpentByLargeFilesAlsoByThoseTooLarge)
{
    const TemporaryFolder folder;
    writeFile(folder / "small", ReadingBudget::smallFile);
    writeFile(folder / "large", ReadingBudget::largestFile / 2);
    writeFile(folder / "larger", ReadingBudget::largestFile * 2);
    for (const char* spender : { "large", "larger" }) {
        ReadingBudget budget;
        for (int round = 0; round < 1000; ++round)
            EXPECT_TRUE(budget.contents(folder / "small"));
        EXPECT_TRUE(budget.contents(folder / "large"));
        for (std::size_t spent = 0; spent <= ReadingBudget::largeFiles; spent += ReadingBudget::largestFile / 2)
            budget.contents(folder / spender);
        EXPECT_FALSE(budget.contents(folder / "large")) << spender;
        EXPECT_TRUE(budget.contents(folder / "small")) << spender;
    }
}

TEST(ReadingBudget, MayHaveBoundsOfItsOwn)
{
    const TemporaryFolder folder;
    writeFile(folder / "largest", 3 * ReadingBudget::largestFile);
    writeFile(folder / "larger", 3 * ReadingBudget::largestFile + 1);
    ReadingBudget budget(3 * ReadingBudget::largestFile, 6 * ReadingBudget::largestFile);
    EXPECT_TRUE(budget.contents(folder / "largest"));
    EXPECT_FALSE(budget.contents(folder / "larger"));
    // Half of it is spent on each.
    EXPECT_FALSE(budget.contents(folder / "largest"));
}

TEST(ReadingBudget, WaitsForNoPipe)
{
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    ReadingBudget budget;
    EXPECT_EQ(budget.contents(folder / "pipe"), std::nullopt);
    EXPECT_EQ(budget.contents("/dev/zero"), std::nullopt);
}

} // namespace
} // namespace Korvane
