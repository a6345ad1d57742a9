// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FormattedBytes.h"
#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <functional>
#include <iostream>

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

constexpr std::size_t mebibyte = 1'048'576;

/// Duplicates among odd files, in odd places, and where something changes or is stopped.
class DuplicatesFaultsTest : public DuplicatesFixture {
protected:
    static constexpr std::size_t larger = 40;

    /// Files that are all equal and compared before the small ones: more than are ever read ahead.
    void makeLargerOnes() const
    {
        for (std::size_t i = 0; i < larger; ++i)
            make("larger" + std::to_string(i), std::string(400 + i / 2, 'l'));
    }

    /// A scan in which something happens when the first copy has been found.
    std::vector<ScanItem> scanDisturbed(const std::function<void()>& happens)
    {
        const auto atFirst = [&](const ScanProgress& progress) {
            if (progress.itemsFound == 1)
                happens();
        };
        return DuplicatesScanner(home(), 100, 1000).scan(host(), atFirst, {});
    }
};

} // namespace

TEST_F(DuplicatesFaultsTest, LinksAreNeitherFollowedNorCompared)
{
    make("a", small);
    writeFile(folder() / "outside/b", small);
    std::filesystem::create_symlink(home() / "a", home() / "link");
    std::filesystem::create_directory_symlink(folder() / "outside", home() / "folder link");
    EXPECT_TRUE(scanSmall().empty());
}

TEST_F(DuplicatesFaultsTest, NamesOfOneFileAreASet)
{
    make("a", small);
    std::filesystem::create_hard_link(home() / "a", home() / "b");
    EXPECT_EQ(scanSmall().size(), 2U);
}

TEST_F(DuplicatesFaultsTest, EachNameOfAFileIsAMemberBesideItsCopies)
{
    const auto original = make("a", small, std::chrono::hours(5));
    std::filesystem::create_hard_link(original, home() / "b");
    make("copy", small, std::chrono::hours(1));
    const auto items = scanSmall();
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[2].url, home() / "copy");
    EXPECT_FALSE(items[0].selectableByDefault);
    EXPECT_TRUE(items[1].selectableByDefault && items[2].selectableByDefault);
}

TEST_F(DuplicatesFaultsTest, SparseFilesAreJudgedByTheirLogicalSize)
{
    writeSparseFile(home() / "a", 3 * mebibyte);
    writeSparseFile(home() / "b", 3 * mebibyte);
    const auto items = scanHome();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].sizeInBytes, 3 * mebibyte);
}

TEST_F(DuplicatesFaultsTest, HowAFileIsStoredMakesNoDifference)
{
    writeSparseFile(home() / "sparse", 3 * mebibyte);
    make("written", std::string(3 * mebibyte, '\0'));
    std::size_t stored = 2;
    if (writeAllocatedFile(home() / "preallocated", 3 * mebibyte))
        ++stored;
    else
        std::cerr << "Nothing can be preallocated in " << home() << "; checking without.\n";
    EXPECT_EQ(scanHome().size(), stored);
}

TEST_F(DuplicatesFaultsTest, FilesThatCannotBeReadAreLeftOut)
{
    make("a", small);
    make("b", small);
    make("c", small);
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(home() / "b", std::filesystem::perms::none);
    const auto found = runAsOrdinaryUser([&] {
        std::string names;
        for (const auto& item : scanSmall())
            names += item.url.filename().string();
        return names;
    });
    EXPECT_TRUE(found == "ac" || found == "ca") << found;
}

TEST_F(DuplicatesFaultsTest, FilesThatVanishBeforeTheyAreReadAreLeftOut)
{
    make("a", small);
    make("b", small);
    makeLargerOnes();
    EXPECT_EQ(scanDisturbed([&] { std::filesystem::remove(home() / "a"); }).size(), larger);
}

TEST_F(DuplicatesFaultsTest, FileReplacedByALinkOrAPipeBeforeItIsReadIsLeftOut)
{
    make("a", small);
    make("b", small);
    make("c", small);
    makeLargerOnes();
    const auto replace = [&] {
        std::filesystem::remove(home() / "a");
        std::filesystem::create_symlink(home() / "c", home() / "a");
        std::filesystem::remove(home() / "b");
        ASSERT_EQ(mkfifo((home() / "b").c_str(), 0600), 0);
    };
    EXPECT_EQ(scanDisturbed(replace).size(), larger);
}

TEST_F(DuplicatesFaultsTest, FilesThatShrinkOrGrowBeforeTheyAreReadAreComparedAsTheyThenAre)
{
    for (const char* name : { "a", "b", "c", "d" })
        make(name, small);
    makeLargerOnes();
    const auto change = [&] {
        std::filesystem::resize_file(home() / "a", 100);
        std::filesystem::resize_file(home() / "b", 250);
    };
    const auto items = scanDisturbed(change);
    ASSERT_EQ(items.size(), larger + 2);
    EXPECT_EQ(items[larger].sizeInBytes, 200);
    EXPECT_NE(itemAt(items, home() / "c"), nullptr);
    EXPECT_NE(itemAt(items, home() / "d"), nullptr);
}

TEST_F(DuplicatesFaultsTest, FileThatBecomesUnreadableBeforeItIsReadIsLeftOut)
{
    for (const char* name : { "a", "b", "c" })
        make(name, small);
    makeLargerOnes();
    giveToOrdinaryUser(folder().path());
    const auto close = [&] { std::filesystem::permissions(home() / "b", std::filesystem::perms::none); };
    EXPECT_EQ(runAsOrdinaryUser([&] {
        const auto items = scanDisturbed(close);
        return std::to_string(items.size() - larger) + (itemAt(items, home() / "b") ? " with b" : " without b");
    }),
        "2 without b");
}

TEST_F(DuplicatesFaultsTest, EmptyFilesAreASetWhenTheSmallestSizeAllowsIt)
{
    make("a", "");
    make("b", "");
    EXPECT_EQ(scan(DuplicatesScanner(home(), 0, 1000)).size(), 2U);
    EXPECT_EQ(scan(DuplicatesScanner(home(), 0, 0)).size(), 2U);
    EXPECT_TRUE(scan(DuplicatesScanner(home(), 1, 1000)).empty());
}

TEST_F(DuplicatesFaultsTest, PrefixLargerThanOneReadIsComparedWhole)
{
    std::string content(9 * mebibyte, 'x');
    make("a", content);
    content[8 * mebibyte + 5] = 'y';
    make("b", content);
    EXPECT_TRUE(scan(DuplicatesScanner(home(), 100, 16 * mebibyte)).empty());
    EXPECT_EQ(scan(DuplicatesScanner(home(), 100, 8 * mebibyte)).size(), 2U);
}

TEST_F(DuplicatesFaultsTest, AnotherRootThanTheHomeFolderIsWalkedLessTheLibraryOfTheHome)
{
    make("Documents/a", small);
    make("Documents/b", small);
    make("Library/c", small);
    EXPECT_EQ(scan(DuplicatesScanner(home() / "Documents", 100, 1000)).size(), 2U);
    EXPECT_EQ(scan(DuplicatesScanner(folder().path(), 100, 1000)).size(), 2U);
}

TEST_F(DuplicatesFaultsTest, RootInsideTheLibraryYieldsNothing)
{
    make("Library/Photos/a", small);
    make("Library/Photos/b", small);
    EXPECT_TRUE(scan(DuplicatesScanner(home() / "Library", 100, 1000)).empty());
    EXPECT_TRUE(scan(DuplicatesScanner(home() / "Library/Photos", 100, 1000)).empty());
}

TEST_F(DuplicatesFaultsTest, RootThatIsMissingOrRelativeYieldsNothing)
{
    make("a", small);
    make("b", small);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder().path());
    for (const auto& wrong : { folder() / "missing", std::filesystem::path("home"), std::filesystem::path() })
        EXPECT_TRUE(scan(DuplicatesScanner(wrong, 100, 1000)).empty()) << wrong;
    std::filesystem::current_path(before);
}

TEST_F(DuplicatesFaultsTest, NamesThatAreNoTextAreComparedAndShown)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto original = make("bad\xff", small, 2h);
    make("copy", small);
    const auto items = scanSmall();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].url, original);
    EXPECT_EQ(items[0].displayName, "bad\uFFFD (original)");
    EXPECT_EQ(items[0].category, "bad\uFFFD \u2014 2 copies, " + formattedBytes(200) + " each");
}

TEST_F(DuplicatesFaultsTest, CancelledScanThrows)
{
    make("a", small);
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)scan(DuplicatesScanner(home()), cancellation), CancellationError);
}

TEST_F(DuplicatesFaultsTest, CancelledWhileComparingThrowsBeforeTheNextSize)
{
    for (int i = 0; i < 5; ++i) {
        make("a" + std::to_string(i), std::string(200 + static_cast<std::size_t>(i), 'x'));
        make("b" + std::to_string(i), std::string(200 + static_cast<std::size_t>(i), 'x'));
    }
    const Cancellation cancellation;
    std::int64_t found = 0;
    const auto cancelAtSecond = [&](const ScanProgress& progress) {
        found = progress.itemsFound;
        if (found == 2)
            cancellation.cancel();
    };
    EXPECT_THROW(
        (void)DuplicatesScanner(home(), 100, 1000).scan(host(), cancelAtSecond, cancellation), CancellationError);
    EXPECT_EQ(found, 2);
}

TEST_F(DuplicatesFaultsTest, CancelledInTheMiddleOfASetReportsNothingMore)
{
    for (int i = 0; i < 50; ++i)
        make(std::to_string(i), std::string(200, 'x'));
    const Cancellation cancellation;
    std::int64_t found = 0;
    const auto cancelAtThird = [&](const ScanProgress& progress) {
        found = progress.itemsFound;
        if (found == 3)
            cancellation.cancel();
    };
    EXPECT_THROW(
        (void)DuplicatesScanner(home(), 100, 1000).scan(host(), cancelAtThird, cancellation), CancellationError);
    EXPECT_EQ(found, 3);
}

TEST_F(DuplicatesFaultsTest, ScanChangesNothing)
{
    const Sentinel first(home() / "a/keep");
    const Sentinel second(home() / "b/keep");
    EXPECT_EQ(scan(DuplicatesScanner(home(), 1, 1000)).size(), 2U);
    EXPECT_EQ(first.difference() + second.difference(), "");
}

} // namespace Korvane
