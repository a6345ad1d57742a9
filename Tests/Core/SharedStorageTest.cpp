// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SharedStorage.h"

#include "Core/Scanning/LargeFilesScanner.h"
#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Support/CancelMidway.h"

#include <gtest/gtest.h>

#include <map>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

namespace fs = std::filesystem;

class SharedStorageTest : public DuplicatesFixture {
protected:
    void link(const char* existing, const char* name) const { fs::create_hard_link(home() / existing, home() / name); }

    /// What a scan finds to be shared, by the path below the home folder.
    std::map<std::string, SharedStorage> shared()
    {
        const DuplicatesScanner scanner(home(), 100, 1000);
        const auto items = scan(scanner);
        std::map<std::string, SharedStorage> found;
        const auto byId = scanner.sharedStorage(items, {});
        for (const auto& item : items) {
            if (const auto entry = byId.find(item.id); entry != byId.end())
                found.emplace(item.url.lexically_relative(home()).native(), entry->second);
        }
        EXPECT_EQ(found.size(), byId.size());
        return found;
    }
};

} // namespace

TEST_F(SharedStorageTest, SetOfNothingButNamesOfOneFileIsToldOfEveryName)
{
    make("a", small);
    link("a", "b");
    fs::create_directory(home() / "folder");
    link("a", "folder/c");
    using enum SharedStorage;
    EXPECT_EQ(shared(),
        (std::map<std::string, SharedStorage>{ { "a", OneFile }, { "b", OneFile }, { "folder/c", OneFile } }));
}

TEST_F(SharedStorageTest, CopiesShareNothing)
{
    make("a", small);
    make("b", small);
    EXPECT_TRUE(shared().empty());
}

TEST_F(SharedStorageTest, SetOfWhichOnlySomeAreNamesOfOneFileFreesSpace)
{
    make("a", small);
    link("a", "b");
    make("c", small);
    EXPECT_TRUE(shared().empty());
}

TEST_F(SharedStorageTest, NamesOutsideTheSetDoNotMatter)
{
    make("a", small);
    link("a", ".hidden");
    make("b", small);
    EXPECT_TRUE(shared().empty());
    fs::remove(home() / "b");
    link("a", "b");
    EXPECT_EQ(shared().size(), 2U);
}

TEST_F(SharedStorageTest, SetsOfOneLabelAreJudgedOneByOne)
{
    const std::string other(small.size(), 'o');
    fs::create_directory(home() / "linked");
    make("1/a", small);
    link("1/a", "linked/a");
    make("2/a", other, 2h);
    make("2/b", other, 1h);
    const auto items = scanSmall();
    ASSERT_EQ(items.size(), 4U);
    EXPECT_EQ(items[0].category, items[2].category);
    using enum SharedStorage;
    EXPECT_EQ(shared(), (std::map<std::string, SharedStorage>{ { "1/a", OneFile }, { "linked/a", OneFile } }));
}

TEST_F(SharedStorageTest, FileThatIsGoneSharesNothing)
{
    make("a", small);
    link("a", "b");
    const auto items = scanSmall();
    fs::remove(home() / "b");
    EXPECT_TRUE(sharedStorageInSets(items, {}).empty());
}

TEST_F(SharedStorageTest, WhatOtherScannersFindIsNotLookedAt)
{
    make("a", std::string(8192, 'x'));
    link("a", "b");
    const LargeFilesScanner scanner(4096, 10);
    const auto items = scan(scanner);
    EXPECT_EQ(items.size(), 2U);
    EXPECT_TRUE(scanner.sharedStorage(items, {}).empty());
}

TEST_F(SharedStorageTest, CancelledLookThrows)
{
    make("a", small);
    make("b", small);
    const auto items = scanSmall();
    Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(sharedStorageInSets(items, cancellation), CancellationError);
}

TEST_F(SharedStorageTest, CancelIsAnsweredInTheMiddleOfALargeSet)
{
    make("a", small);
    std::vector<ScanItem> items;
    for (int i = 0; i < 100'000; ++i)
        items.emplace_back(home() / "a", std::nullopt, "one set", 100, i != 0);
    const auto look = [&](const Cancellation& cancellation) { sharedStorageInSets(items, cancellation); };
    EXPECT_TRUE(stopsWhenCancelled(look, 50ms));
}

} // namespace Korvane
