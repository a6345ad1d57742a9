// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Each rule a second time, slow and simple, run beside the real one on random homes.

#include "Core/Scanning/DuplicatesScanner.h"
#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Tests/Core/RandomHome.h"
#include "Tests/Core/ReferenceRules.h"
#include "Tests/Core/RestlessFolder.h"
#include "Tests/Core/ScanFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

constexpr unsigned homes = 300;
constexpr unsigned homesPerTest = 25;
constexpr int entriesPerHome = 60;

ReferenceRow rowOf(const ScanItem& item)
{
    return { item.url, item.displayName, item.category, item.sizeInBytes, item.selectableByDefault };
}

std::vector<ReferenceRow> rowsOf(const std::vector<ScanItem>& items)
{
    std::vector<ReferenceRow> rows;
    std::transform(items.begin(), items.end(), std::back_inserter(rows), rowOf);
    return rows;
}

/// The sets among the items of a scan for duplicates: each begins with the one that is not pre-selected.
std::set<std::vector<ReferenceRow>> setsOf(const std::vector<ScanItem>& items)
{
    std::set<std::vector<ReferenceRow>> sets;
    std::vector<ReferenceRow> current;
    for (const auto& item : items) {
        if (!item.selectableByDefault && !current.empty())
            sets.insert(std::exchange(current, {}));
        current.push_back(rowOf(item));
    }
    if (!current.empty())
        sets.insert(current);
    return sets;
}

/// One random home and scans of it.
class ReferenceHome {
public:
    explicit ReferenceHome(unsigned seed)
    {
        RandomHome(seed).fill(home(), entriesPerHome);
        RandomHome(seed + 1'000'000).fill(temporary(), 3);
        m_host.workspace->setRunning({ "org.example.Player" });
    }

    std::vector<ScanItem> scan(const JunkScanner& scanner)
    {
        m_last = {};
        return scanner.scan(m_host.host, [this](const ScanProgress& progress) { m_last = progress; }, {});
    }

    /// Items found and bytes, of the last report of the last scan.
    std::pair<std::int64_t, std::int64_t> lastTotals() const { return { m_last.itemsFound, m_last.bytesFound }; }

    fs::path home() const { return m_folder / "home"; }
    fs::path temporary() const { return m_folder / "tmp"; }

private:
    TemporaryFolder m_folder;
    TestHost m_host = makeTestHost(m_folder);
    ScanProgress m_last;
};

template <std::size_t Count> std::int64_t oneOf(const std::array<std::int64_t, Count>& values, unsigned seed)
{
    return values[seed % Count];
}

void compareLargeFiles(ReferenceHome& home, const ReferenceRules& rules, unsigned seed)
{
    const auto threshold = oneOf<5>({ 0, 1, 4096, 4097, 8192 }, seed);
    const auto count = oneOf<4>({ 300, 15, 1, 0 }, seed / 5);
    EXPECT_EQ(rowsOf(home.scan(LargeFilesScanner(threshold, count))), rules.largeFiles(threshold, count));
    std::pair<std::int64_t, std::int64_t> totals{ 0, 0 };
    for (const auto& row : rules.largeFiles(threshold, 1'000'000))
        totals = { totals.first + 1, totals.second + std::get<std::int64_t>(row) };
    EXPECT_EQ(home.lastTotals(), totals);
}

void compareDuplicates(ReferenceHome& home, const ReferenceRules& rules, unsigned seed)
{
    const auto minimum = oneOf<5>({ 100, 101, 0, 3000, 90 }, seed);
    const auto prefix = oneOf<6>({ 1000, 1500, 1501, 4'194'304, 1, 0 }, seed / 5);
    const auto sets = rules.duplicates(home.home(), minimum, prefix);
    EXPECT_EQ(setsOf(home.scan(DuplicatesScanner(home.home(), minimum, prefix))), sets);
    std::pair<std::int64_t, std::int64_t> totals{ 0, 0 };
    for (const auto& set : sets) {
        const auto copies = static_cast<std::int64_t>(set.size()) - 1;
        totals = { totals.first + copies, totals.second + copies * std::get<std::int64_t>(set.front()) };
    }
    EXPECT_EQ(home.lastTotals(), totals);
    EXPECT_EQ(setsOf(home.scan(DuplicatesScanner(home.home().native() + "//", minimum, prefix))), sets);
    const auto link = home.temporary() / "link";
    fs::create_directory_symlink(home.home(), link);
    EXPECT_EQ(setsOf(home.scan(DuplicatesScanner(link, minimum, prefix))), rules.duplicates(link, minimum, prefix));
    fs::remove(link);
    if (const auto below = home.home() / "Documents"; fs::is_directory(fs::symlink_status(below))) {
        EXPECT_EQ(
            setsOf(home.scan(DuplicatesScanner(below, minimum, prefix))), rules.duplicates(below, minimum, prefix));
    }
}

void compareSizes(const ReferenceHome& home)
{
    EXPECT_EQ(FileSizeCalculator::totalSize(home.home()), ReferenceRules::totalSize(home.home()));
    for (const auto& entry : fs::directory_iterator(home.home()))
        EXPECT_EQ(FileSizeCalculator::totalSize(entry.path()), ReferenceRules::totalSize(entry.path())) << entry.path();
}

void compareJunk(ReferenceHome& home)
{
    // What a link in the place of a folder means has tests of its own.
    for (const char* place : { ".cache", ".Trash", "Library", "Library/Caches", "Library/Logs", "Library/Developer",
             "Library/Developer/Xcode", "Library/Developer/Xcode/DerivedData" }) {
        if (fs::is_symlink(home.home() / place))
            fs::remove(home.home() / place);
    }
    const auto rows = rowsOf(home.scan(SystemJunkScanner()));
    EXPECT_EQ(std::set<ReferenceRow>(rows.begin(), rows.end()), ReferenceRules(home.home()).junk(home.temporary()));
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(), [](const ReferenceRow& left, const ReferenceRow& right) {
        return std::get<std::int64_t>(left) > std::get<std::int64_t>(right);
    }));
}

class ReferenceTest : public testing::TestWithParam<unsigned> { };

} // namespace

TEST_P(ReferenceTest, EveryRuleAgrees)
{
    for (unsigned seed = GetParam(); seed < GetParam() + homesPerTest && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ReferenceHome home(seed);
        const ReferenceRules rules(home.home());
        compareLargeFiles(home, rules, seed);
        compareDuplicates(home, rules, seed);
        compareSizes(home);
        compareJunk(home);
    }
}

TEST_P(ReferenceTest, WhatKeepsStillAgreesWhileTheRestChanges)
{
    for (unsigned seed = GetParam(); seed < GetParam() + homesPerTest && !HasFailure(); seed += 5) {
        SCOPED_TRACE(seed);
        ReferenceHome home(seed);
        const ReferenceRules rules(home.home());
        const auto stillLarge = rules.largeFiles(4096, 100'000);
        const auto stillSets = rules.duplicates(home.home(), 100, 1000);
        const auto stillSize = ReferenceRules::totalSize(home.home());
        const RestlessFolder restless(home.home() / "restless");
        const auto isStill = [&](const ReferenceRow& row) { return !restless.mayHold(std::get<fs::path>(row)); };
        auto large = rowsOf(home.scan(LargeFilesScanner(4096, 100'000)));
        large.erase(std::stable_partition(large.begin(), large.end(), isStill), large.end());
        EXPECT_EQ(large, stillLarge);

        auto sets = setsOf(home.scan(DuplicatesScanner(home.home(), 100, 1000)));
        for (auto set = sets.begin(); set != sets.end();) {
            const bool still = std::all_of(set->begin(), set->end(), isStill);
            EXPECT_TRUE(still || std::none_of(set->begin(), set->end(), isStill));
            set = still ? std::next(set) : sets.erase(set);
        }
        EXPECT_EQ(sets, stillSets);
        EXPECT_GE(FileSizeCalculator::totalSize(home.home()), stillSize);
    }
}

INSTANTIATE_TEST_SUITE_P(RandomHomes, ReferenceTest, testing::Range(0U, homes, homesPerTest));

} // namespace Korvane
