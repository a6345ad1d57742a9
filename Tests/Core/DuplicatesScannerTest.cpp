// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/DuplicateCandidate.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Core/WalkOrder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

constexpr std::size_t mebibyte = 1'048'576;

class DuplicatesScannerTest : public DuplicatesFixture { };

} // namespace

TEST_F(DuplicatesScannerTest, OlderOfTwoIsTheOriginalAndTheNewerIsPreselected)
{
    const std::string content(2 * mebibyte, 'x');
    const auto newer = make("b.bin", content, 1h);
    const auto older = make("a.bin", content, 2h);
    const auto items = scanHome();
    ASSERT_EQ(urls(items), (std::vector{ older, newer }));
    EXPECT_EQ(items[0].displayName, "a.bin (original)");
    EXPECT_FALSE(items[0].selectableByDefault);
    EXPECT_EQ(items[1].displayName, "b.bin");
    EXPECT_TRUE(items[1].selectableByDefault);
    for (const auto& item : items) {
        EXPECT_EQ(item.category, "a.bin \xE2\x80\x94 2 copies, " + formattedBytes(2 * mebibyte) + " each");
        EXPECT_EQ(item.sizeInBytes, 2 * mebibyte);
    }
}

TEST_F(DuplicatesScannerTest, SmallestSizeIsOneMebibyteInclusive)
{
    make("a", std::string(mebibyte - 1, 'x'));
    make("b", std::string(mebibyte - 1, 'x'));
    EXPECT_TRUE(scanHome().empty());
    make("c", std::string(mebibyte, 'x'));
    make("d", std::string(mebibyte, 'x'));
    EXPECT_EQ(scanHome().size(), 2U);
}

TEST_F(DuplicatesScannerTest, BytesBeyondThePrefixAreNotCompared)
{
    std::string content(10 * mebibyte, 'x');
    make("a", content);
    content[4 * mebibyte] = 'y';
    make("b", content);
    EXPECT_EQ(scanHome().size(), 2U);
    content[4 * mebibyte - 1] = 'y';
    make("b", content);
    EXPECT_TRUE(scanHome().empty());
}

TEST_F(DuplicatesScannerTest, SameSizeWithDifferentContentIsNoSet)
{
    make("a", std::string(200, 'a'));
    make("b", std::string(200, 'b'));
    EXPECT_TRUE(scanSmall().empty());
}

TEST_F(DuplicatesScannerTest, SamePrefixWithDifferentSizesIsNoSet)
{
    make("a", std::string(2000, 'a'));
    make("b", std::string(2001, 'a'));
    EXPECT_TRUE(scanSmall().empty());
}

TEST_F(DuplicatesScannerTest, OfEquallyOldFilesTheOneMetFirstIsKept)
{
    for (const char* name : { "x/1", "y/2", "z/3" })
        make(name, small);
    std::vector<std::filesystem::path> inWalkOrder;
    for (const auto& entry : walkOrder(home())) {
        if (std::filesystem::is_regular_file(entry.path))
            inWalkOrder.push_back(entry.path);
    }
    const auto items = scanSmall();
    EXPECT_EQ(urls(items), inWalkOrder);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_FALSE(items[0].selectableByDefault);
    EXPECT_TRUE(items[1].selectableByDefault && items[2].selectableByDefault);
}

TEST_F(DuplicatesScannerTest, FileWithoutAModificationDateSortsAsTheOldest)
{
    std::vector<DuplicateCandidate> candidates{
        { "/dated", 1, DuplicateCandidate::Timestamp(-24h * 365 * 100) },
        { "/undated", 1, std::nullopt },
        { "/undated too", 1, std::nullopt },
    };
    sortOldestFirst(candidates, {});
    EXPECT_EQ(candidates[0].url, "/undated");
    EXPECT_EQ(candidates[1].url, "/undated too");
    EXPECT_EQ(candidates[2].url, "/dated");
}

TEST_F(DuplicatesScannerTest, DatesBeforeTheEpochAreOlder)
{
    const auto recent = make("recent", small);
    const auto ancient = make("ancient", small);
    setModified(ancient, std::chrono::system_clock::time_point(-24h * 365));
    EXPECT_EQ(urls(scanSmall()), (std::vector{ ancient, recent }));
}

TEST_F(DuplicatesScannerTest, FilesInPlacesThatAreNotWalkedAreNeverCompared)
{
    make("a", small);
    for (const char* path : { "Library/b", "Library/deep/b", ".hidden/b", ".b", "Editor.app/Contents/b",
             "project/node_modules/b", "project/.git/b", "target/deep/b" })
        make(path, small);
    EXPECT_TRUE(scanSmall().empty());
    make("c", small);
    EXPECT_EQ(scanSmall().size(), 2U);
}

TEST_F(DuplicatesScannerTest, TotalsCountOnlyTheCopiesThatCanBeRemoved)
{
    const std::string content(5'000'000, 'x');
    for (const char* name : { "a", "b", "c" })
        make(name, content);
    EXPECT_EQ(scanHome().size(), 3U);
    ASSERT_EQ(reports().size(), 3U);
    EXPECT_EQ(reports()[0], (ScanProgress{ home().string(), 0, 0 }));
    EXPECT_EQ(reports()[1].itemsFound, 1);
    EXPECT_EQ(reports()[1].bytesFound, 5'000'000);
    EXPECT_EQ(reports()[2].itemsFound, 2);
    EXPECT_EQ(reports()[2].bytesFound, 10'000'000);
}

TEST_F(DuplicatesScannerTest, ReportsAtEvery512thEntryOfTheWalkWithoutTotals)
{
    for (int i = 0; i < 1100; ++i)
        make("d" + std::to_string(i % 20) + "/f" + std::to_string(i), "tiny");
    EXPECT_TRUE(scanSmall().empty());
    std::vector<ScanProgress> expected;
    std::size_t visited = 0;
    for (const auto& entry : walkOrder(home())) {
        if (visited++ % 512 == 0)
            expected.push_back({ entry.parent.string(), 0, 0 });
    }
    EXPECT_EQ(expected.size(), 3U);
    EXPECT_EQ(reports(), expected);
}

TEST_F(DuplicatesScannerTest, MembersOfASetAreAdjacentAndShareTheirLabel)
{
    for (int set = 0; set < 3; ++set) {
        for (int copy = 0; copy < 4; ++copy)
            make("d" + std::to_string(copy) + "/set" + std::to_string(set), std::string(200, char('a' + set)),
                std::chrono::hours(copy + 1));
    }
    const auto items = scanSmall();
    ASSERT_EQ(items.size(), 12U);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& original = items[i / 4 * 4];
        EXPECT_EQ(items[i].category, original.category);
        EXPECT_EQ(items[i].selectableByDefault, i % 4 != 0);
        EXPECT_EQ(items[i].url.filename(), original.url.filename());
        EXPECT_EQ(items[i].url.parent_path().filename(), "d" + std::to_string(3 - i % 4));
    }
}

TEST_F(DuplicatesScannerTest, LargerFilesComeFirstAndEveryScanGivesTheSame)
{
    for (int i = 0; i < 40; ++i)
        make("f" + std::to_string(i), std::string(200 + static_cast<std::size_t>(i % 5), char('a' + i % 7)));
    const auto first = scanSmall();
    ASSERT_FALSE(first.empty());
    EXPECT_TRUE(std::is_sorted(first.begin(), first.end(),
        [](const ScanItem& left, const ScanItem& right) { return left.sizeInBytes > right.sizeInBytes; }));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(urls(scanSmall()), urls(first));
}

} // namespace Korvane
