// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/ScanModel.h"

#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

class FileSizeCalculatorTest : public testing::Test {
protected:
    TemporaryFolder folder;
};

ScanItem itemOf(const std::filesystem::path& url) { return { url, std::nullopt, "Category", 1, true }; }

} // namespace

TEST_F(FileSizeCalculatorTest, PathThatDoesNotExistMeasuresZero)
{
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "missing"), 0);
}

TEST_F(FileSizeCalculatorTest, EmptyFolderMeasuresZero)
{
    std::filesystem::create_directories(folder / "empty/inner");
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "empty"), 0);
}

TEST_F(FileSizeCalculatorTest, FolderWithOneFileMeasuresItsAllocatedSize)
{
    writeFile(folder / "one/file", std::size_t{ 5001 });
    const auto size = FileSizeCalculator::totalSize(folder / "one");
    EXPECT_EQ(size, allocatedBytes(folder / "one/file"));
    EXPECT_GE(size, 5001);
    EXPECT_EQ(size % 512, 0);
}

TEST_F(FileSizeCalculatorTest, FileItselfMeasuresItsAllocatedSize)
{
    writeFile(folder / "file", std::size_t{ 70'000 });
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "file"), allocatedBytes(folder / "file"));
}

TEST_F(FileSizeCalculatorTest, HiddenFoldersPackagesAndDependencyFoldersCount)
{
    writeFile(folder / "tree/.git/objects/pack", std::size_t{ 10'000 });
    writeFile(folder / "tree/Editor.app/Contents/binary", std::size_t{ 20'000 });
    writeFile(folder / "tree/node_modules/left/index.js", std::size_t{ 30'000 });
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "tree"),
        allocatedBytes(folder / "tree/.git/objects/pack") + allocatedBytes(folder / "tree/Editor.app/Contents/binary")
            + allocatedBytes(folder / "tree/node_modules/left/index.js"));
}

TEST_F(FileSizeCalculatorTest, UnreadableSubfolderLeavesTheSumOfEverythingElse)
{
    writeFile(folder / "tree/open/file", std::size_t{ 10'000 });
    writeFile(folder / "tree/closed/file", std::size_t{ 20'000 });
    const auto expected = std::to_string(allocatedBytes(folder / "tree/open/file"));
    giveToOrdinaryUser(folder.path());
    std::filesystem::permissions(folder / "tree/closed", std::filesystem::perms::none);
    EXPECT_EQ(
        runAsOrdinaryUser([&] { return std::to_string(FileSizeCalculator::totalSize(folder / "tree")); }), expected);
}

TEST_F(FileSizeCalculatorTest, LinkIsMeasuredAsItselfAndNeverFollowed)
{
    writeFile(folder / "outside/large", std::size_t{ 1'000'000 });
    std::filesystem::create_directory_symlink(folder / "outside", folder / "link");
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "link"), allocatedBytes(folder / "link"));
    std::filesystem::create_directory(folder / "tree");
    std::filesystem::create_directory_symlink(folder / "outside", folder / "tree/link");
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "tree"), 0);
}

TEST_F(FileSizeCalculatorTest, SparseFileCountsWhatItOccupies)
{
    writeSparseFile(folder / "tree/sparse", std::int64_t{ 1 } << 40);
    EXPECT_EQ(FileSizeCalculator::totalSize(folder / "tree"), allocatedBytes(folder / "tree/sparse"));
    EXPECT_LT(FileSizeCalculator::totalSize(folder / "tree"), 1'000'000);
}

TEST_F(FileSizeCalculatorTest, CancelledMeasureThrows)
{
    writeFile(folder / "tree/file", std::size_t{ 10 });
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)FileSizeCalculator::totalSize(folder / "tree", cancellation), CancellationError);
}

TEST(ProgressThrottleTest, FirstCallPassesAndASecondWithinTheIntervalDoesNot)
{
    ProgressThrottle throttle(ProgressThrottle::standardInterval);
    EXPECT_TRUE(throttle.shouldEmit());
    EXPECT_FALSE(throttle.shouldEmit());
}

TEST(ProgressThrottleTest, ExactlyTheIntervalAfterTheLastReportPasses)
{
    ProgressThrottle throttle(ProgressThrottle::standardInterval);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(throttle.shouldEmit(start));
    EXPECT_FALSE(throttle.shouldEmit(start + 100ms - 1ns));
    EXPECT_TRUE(throttle.shouldEmit(start + 100ms));
    EXPECT_FALSE(throttle.shouldEmit(start + 199ms));
    EXPECT_TRUE(throttle.shouldEmit(start + 250ms));
}

TEST(ProgressThrottleTest, CallThatIsDroppedDoesNotDelayTheNext)
{
    ProgressThrottle throttle(ProgressThrottle::standardInterval);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(throttle.shouldEmit(start));
    EXPECT_FALSE(throttle.shouldEmit(start + 90ms));
    EXPECT_TRUE(throttle.shouldEmit(start + 110ms));
}

TEST(ProgressThrottleTest, FirstCallPassesAtAnyMoment)
{
    EXPECT_TRUE(ProgressThrottle().shouldEmit(std::chrono::steady_clock::time_point{}));
    EXPECT_TRUE(ProgressThrottle().shouldEmit(std::chrono::steady_clock::time_point(24h * 365 * 100)));
}

TEST(ScanExclusionsTest, NamesMatchExactly)
{
    EXPECT_TRUE(ScanExclusions::shouldSkip("node_modules"));
    EXPECT_FALSE(ScanExclusions::shouldSkip("Node_Modules"));
    EXPECT_TRUE(ScanExclusions::shouldSkip("bower_components"));
    EXPECT_FALSE(ScanExclusions::shouldSkip("node_modules/"));
    EXPECT_FALSE(ScanExclusions::shouldSkip(""));
}

TEST(ScanExclusionsTest, HoldsTheFifteenNames)
{
    const std::unordered_set<std::string> names{ "node_modules", "Pods", "Carthage", "vendor", "venv", ".venv", ".git",
        ".build", "DerivedData", "target", ".gradle", "bower_components", "__pycache__", ".terraform", ".m2" };
    EXPECT_EQ(ScanExclusions::dependencyDirNames(), names);
    EXPECT_EQ(ScanExclusions::dependencyDirNames().size(), 15U);
}

TEST(ScanItemTest, ItemsBuiltFromTheSameArgumentsAreNotEqual)
{
    const auto first = itemOf("/home/user/file");
    const auto second = itemOf("/home/user/file");
    EXPECT_NE(first, second);
    EXPECT_NE(first.id, second.id);
}

TEST(ScanItemTest, CopiesAreEqualAndHashAlike)
{
    const auto item = itemOf("/home/user/file");
    const auto copy = item;
    EXPECT_EQ(item, copy);
    EXPECT_EQ(std::hash<ScanItem>{}(item), std::hash<ScanItem>{}(copy));
    EXPECT_EQ((std::unordered_set<ScanItem>{ item, copy, itemOf("/home/user/file") }).size(), 2U);
}

TEST(ScanItemTest, EachMemberTakesPartInEquality)
{
    const auto item = itemOf("/home/user/file");
    auto other = item;
    other.url = "/home/user/other";
    EXPECT_NE(item, other);
    other = item;
    other.displayName = "Other";
    EXPECT_NE(item, other);
    other = item;
    other.category = "Other";
    EXPECT_NE(item, other);
    other = item;
    other.sizeInBytes = 2;
    EXPECT_NE(item, other);
    other = item;
    other.selectableByDefault = false;
    EXPECT_NE(item, other);
}

TEST(ScanItemTest, AbsentDisplayNameIsTheLastPathComponent)
{
    EXPECT_EQ(itemOf("/home/user/file.txt").displayName, "file.txt");
    EXPECT_EQ(itemOf("/home/user/folder/").displayName, "folder");
    EXPECT_EQ(itemOf("/home/user/folder//").displayName, "folder");
    EXPECT_EQ(itemOf("/").displayName, "/");
    EXPECT_EQ(itemOf("/home/user/.Trash").displayName, ".Trash");
}

TEST(ScanItemTest, AbsentDisplayNameOfBytesThatAreNoTextIsStillShown)
{
    EXPECT_EQ(itemOf("/home/user/bad\xff"
                     "name")
                  .displayName,
        "bad\uFFFDname");
}

TEST(ScanItemTest, GivenDisplayNameIsKept)
{
    EXPECT_EQ(ScanItem("/a/b", "Shown", "Category", 0, false).displayName, "Shown");
}

TEST(ScanProgressTest, DefaultRecordMeansNoProgressYet)
{
    const ScanProgress progress;
    EXPECT_EQ(progress.currentPath, "");
    EXPECT_EQ(progress.itemsFound, 0);
    EXPECT_EQ(progress.bytesFound, 0);
}

} // namespace Korvane
