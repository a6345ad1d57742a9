// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DirectoryEnumerator.h"

#include "Tests/Platform/Walking/PlainWalk.h"
#include "Tests/Platform/Walking/RandomTree.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace Korvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class DirectoryEnumeratorTest : public testing::Test {
protected:
    TemporaryFolder m_folder;
};

/// Every combination of options, by number.
EnumerationOptions optionsOf(std::uint32_t number, const fs::path& root, const std::unordered_set<std::string>& names)
{
    EnumerationOptions options;
    options.hiddenFiles = number & 1 ? HiddenFiles::Skipped : HiddenFiles::Included;
    options.packageDescendants = number & 2 ? PackageDescendants::Skipped : PackageDescendants::Entered;
    if (number & 4)
        options.namesNeverEntered = &names;
    if (number & 8)
        options.pathsNeverEntered = { root / "Library", root / "target" };
    options.values = static_cast<PrefetchedValues>(number / 16 % 4);
    if (number & 64)
        options.smallestAllocatedSize = 4096;
    if (number & 128)
        options.smallestFileSize = 100;
    return options;
}

TEST(DirectoryEnumeratorRandomTest, GivesWhatAPlainRecursionGivesInTheSameOrder)
{
    const std::unordered_set<std::string> names{ "node_modules", ".git", "target" };
    std::size_t delivered = 0;
    for (std::uint32_t seed = 0; seed < 240; ++seed) {
        // Both kinds of file system that the machine offers have a say.
        const TemporaryFolder folder(seed % 4 == 0 ? fs::temp_directory_path() : placeForLargeTrees());
        const RandomTree tree(folder.path(), seed, 20 + static_cast<int>(seed) % 180);
        const auto options = optionsOf(seed, folder.path(), names);
        const SkipRule skip = [seed](const fs::path& path) {
            return seed % 5 == 0 && std::hash<std::string>()(path.filename().native()) % 4 == 0;
        };
        const auto expected = walkedPlainly(folder.path(), options, skip);
        ASSERT_EQ(walked(folder.path(), options, skip), expected) << "seed " << seed;
        delivered += expected.size();
    }
    EXPECT_GT(delivered, 5000U);
}

TEST_F(DirectoryEnumeratorTest, KeepsItsOrderOnEveryRunOfALargeTree)
{
    const TemporaryFolder folder(placeForLargeTrees());
    const RandomTree tree(folder.path(), 77, 12'000);
    const auto expected = walkedPlainly(folder.path());
    for (int run = 0; run < 12; ++run)
        ASSERT_EQ(walked(folder.path()), expected);
}

TEST_F(DirectoryEnumeratorTest, GivesFoldersBeforeWhatTheyHoldAndNeverTheRoot)
{
    writeFile(m_folder / "one/two/file", "x");
    EXPECT_THAT(namesOf(m_folder.path()), ElementsAre("one", "two", "file"));
}

TEST_F(DirectoryEnumeratorTest, LeavesOutHiddenEntriesAndAllBelowThem)
{
    writeFile(m_folder / ".hidden/file", "x");
    writeFile(m_folder / ".file", "x");
    writeFile(m_folder / "seen/.git/config", "x");
    EnumerationOptions options;
    options.hiddenFiles = HiddenFiles::Skipped;
    EXPECT_THAT(namesOf(m_folder.path(), options), ElementsAre("seen"));
    EXPECT_THAT(namesOf(m_folder.path()), UnorderedElementsAre(".hidden", "file", ".file", "seen", ".git", "config"));
}

TEST_F(DirectoryEnumeratorTest, DeliversAPackageAndItsContentsOnlyWhenAsked)
{
    writeFile(m_folder / "Tool.APP/Contents/tool", "x");
    writeFile(m_folder / "Tool2.app", "a file of that name is no package");
    EnumerationOptions options;
    options.packageDescendants = PackageDescendants::Skipped;
    EXPECT_THAT(namesOf(m_folder.path(), options), UnorderedElementsAre("Tool.APP", "Tool2.app"));
    EXPECT_THAT(namesOf(m_folder.path()), UnorderedElementsAre("Tool.APP", "Contents", "tool", "Tool2.app"));
    DirectoryEnumerator walk(m_folder.path(), options);
    while (const auto* entry = walk.next())
        EXPECT_EQ(entry->isPackage(), entry->name() == "Tool.APP");
}

TEST_F(DirectoryEnumeratorTest, DeliversButNeverEntersTheNamesGiven)
{
    writeFile(m_folder / "node_modules/inside", "x");
    writeFile(m_folder / "Node_Modules/inside", "x");
    const std::unordered_set<std::string> names{ "node_modules" };
    EnumerationOptions options;
    options.namesNeverEntered = &names;
    EXPECT_THAT(namesOf(m_folder.path(), options), UnorderedElementsAre("node_modules", "Node_Modules", "inside"));
}

TEST_F(DirectoryEnumeratorTest, DeliversButNeverEntersThePathsGiven)
{
    writeFile(m_folder / "Library/inside", "x");
    writeFile(m_folder / "other/Library/deep", "x");
    writeFile(m_folder / "Library2/file", "x");
    EnumerationOptions options;
    options.pathsNeverEntered = { m_folder / "Library" };
    EXPECT_THAT(namesOf(m_folder.path(), options),
        UnorderedElementsAre("Library", "other", "Library", "deep", "Library2", "file"));
    EXPECT_THAT(namesOf(m_folder.path() / "", options),
        UnorderedElementsAre("Library", "other", "Library", "deep", "Library2", "file"));
}

TEST_F(DirectoryEnumeratorTest, PassesOverDescendantsOfAFolderAndOfNothingElse)
{
    writeFile(m_folder / "a/file", "x");
    DirectoryEnumerator walk(m_folder.path(), {});
    walk.skipDescendants(); // Before the first entry: nothing to pass over.
    EXPECT_EQ(walk.next()->name(), "a");
    EXPECT_EQ(walk.next()->name(), "file");
    walk.skipDescendants(); // After a file likewise.
    EXPECT_EQ(walk.next(), nullptr);
    walk.skipDescendants();
    EXPECT_EQ(walk.next(), nullptr);

    DirectoryEnumerator second(m_folder.path(), {});
    EXPECT_EQ(second.next()->name(), "a");
    second.skipDescendants();
    second.skipDescendants();
    EXPECT_EQ(second.next(), nullptr);
}

TEST_F(DirectoryEnumeratorTest, DeliversLinksAndFollowsNone)
{
    writeFile(m_folder / "real/file", "x");
    fs::create_directory_symlink(m_folder.path(), m_folder / "real/loop");
    fs::create_symlink("nowhere", m_folder / "dangling");
    fs::create_symlink("self", m_folder / "self");
    DirectoryEnumerator walk(m_folder.path(), {});
    std::vector<std::string> links;
    while (const auto* entry = walk.next()) {
        if (entry->type() == EntryType::SymbolicLink)
            links.emplace_back(entry->name());
    }
    EXPECT_THAT(links, UnorderedElementsAre("loop", "dangling", "self"));
    EXPECT_EQ(namesOf(m_folder.path()).size(), 5U);
}

TEST_F(DirectoryEnumeratorTest, FollowsALinkThatIsTheRootItself)
{
    writeFile(m_folder / "home/file", "x");
    fs::create_directory_symlink("home", m_folder / "link");
    DirectoryEnumerator walk(m_folder / "link", {});
    const auto* entry = walk.next();
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->path(), m_folder / "link/file");
}

TEST_F(DirectoryEnumeratorTest, TellsTheValuesThatWereAskedForAndNoOthers)
{
    writeFile(m_folder / "folder/file", std::string(5000, 'x'));
    const auto valuesOf = [&](PrefetchedValues values, const std::string& name) {
        EnumerationOptions options;
        options.values = values;
        DirectoryEnumerator walk(m_folder.path(), options);
        const auto* entry = walk.next();
        while (entry->name() != name)
            entry = walk.next();
        EXPECT_TRUE(entry->hasValues());
        return entry->values();
    };
    EXPECT_EQ(valuesOf(PrefetchedValues::FileValues, "file").fileSize, 5000);
    EXPECT_EQ(valuesOf(PrefetchedValues::FileValues, "folder").fileSize, std::nullopt);
    EXPECT_EQ(valuesOf(PrefetchedValues::TypeOnly, "file").totalFileAllocatedSize, std::nullopt);
    EXPECT_TRUE(valuesOf(PrefetchedValues::AllValues, "folder").contentModificationDate.has_value());
}

TEST_F(DirectoryEnumeratorTest, MakesPathsFromTheRootAsItWasGiven)
{
    writeFile(m_folder / "a/b", "x");
    DirectoryEnumerator walk(m_folder.path() / "", {});
    EXPECT_EQ(walk.next()->path().native(), m_folder.path().native() + "/a");
    EXPECT_EQ(walk.next()->path().native(), m_folder.path().native() + "/a/b");
}

TEST_F(DirectoryEnumeratorTest, ReportsARootThatIsNoReadableFolderOnce)
{
    writeFile(m_folder / "file", "x");
    for (const auto* name : { "file", "missing" }) {
        std::vector<fs::path> errors;
        EnumerationOptions options;
        options.errorHandler = [&](const FileError& error) {
            errors.push_back(error.path());
            return OnError::Continue;
        };
        EXPECT_THAT(namesOf(m_folder / name, options), IsEmpty());
        EXPECT_THAT(errors, ElementsAre(m_folder / name));
        EXPECT_THAT(namesOf(m_folder / name), IsEmpty()) << "and without a handler likewise";
    }
}

TEST_F(DirectoryEnumeratorTest, CanBeMovedInMidWalk)
{
    writeFile(m_folder / "a/b/c", "x");
    DirectoryEnumerator first(m_folder.path(), {});
    EXPECT_EQ(first.next()->name(), "a");
    DirectoryEnumerator second(std::move(first));
    EXPECT_EQ(second.next()->name(), "b");
    second = DirectoryEnumerator(m_folder.path(), {});
    EXPECT_EQ(second.next()->name(), "a");
}

} // namespace
} // namespace Korvane
