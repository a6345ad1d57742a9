// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/CleanerFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/PrivateRoot.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>

#include <unistd.h>

namespace Korvane {

namespace {

class CleanerTest : public CleanerFixture { };

} // namespace

TEST_F(CleanerTest, EmptyListYieldsNothing)
{
    EXPECT_EQ(clean({}, Removal::MoveToTrash), Cleaner::Result());
    EXPECT_EQ(clean({}, Removal::Delete), Cleaner::Result());
}

TEST_F(CleanerTest, OrdinaryFileEndsUpInTheTrash)
{
    const auto file = makeFile("old.log");
    const auto result = clean({ item(file, 4096) }, Removal::MoveToTrash);
    EXPECT_EQ(result, (Cleaner::Result{ 4096, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(readFile(trashed("old.log")), "content");
    EXPECT_TRUE(isInTestTrash(host().environment, "old.log"));
}

TEST_F(CleanerTest, OrdinaryFileIsGoneWhenDeleted)
{
    const auto file = makeFile("old.log");
    const auto result = clean({ item(file, 4096) }, Removal::Delete);
    EXPECT_EQ(result, (Cleaner::Result{ 4096, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FALSE(std::filesystem::exists(trashed("old.log")));
}

TEST_F(CleanerTest, VanishedItemFailsWithThePlatformsTextAndTheOthersAreCleaned)
{
    const auto first = makeFile("first");
    const auto last = makeFile("last");
    for (const auto removal : { Removal::MoveToTrash, Removal::Delete }) {
        makeFile("first");
        makeFile("last");
        const auto result = clean({ item(first, 1), item(home() / "gone", 2), item(last, 4) }, removal);
        EXPECT_EQ(result.cleanedBytes, 5);
        EXPECT_EQ(result.cleanedCount, 2);
        ASSERT_EQ(result.failures.size(), 1U);
        EXPECT_EQ(result.failures[0].url, home() / "gone");
        try {
            host().files->removeItem(home() / "gone");
            FAIL() << "a missing file was removed";
        } catch (const FileError& error) {
            EXPECT_EQ(result.failures[0].message, error.localizedDescription());
        }
    }
}

TEST_F(CleanerTest, FolderIsRemovedAsAWholeTree)
{
    makeFile("tree/a/b/c/file");
    makeFile("tree/.hidden/file");
    std::filesystem::create_directory_symlink(home() / "Documents", home() / "tree/link");
    EXPECT_EQ(clean({ item(home() / "tree", 9) }, Removal::Delete), (Cleaner::Result{ 9, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(home() / "tree"));
}

TEST_F(CleanerTest, LinkIsRemovedAndNotWhatItNames)
{
    std::filesystem::create_directory_symlink(home() / "Documents", home() / "link");
    EXPECT_EQ(clean({ item(home() / "link", 1) }, Removal::Delete).cleanedCount, 1);
    EXPECT_FALSE(std::filesystem::is_symlink(home() / "link"));
}

TEST_F(CleanerTest, NamesThatAreNoTextAreCleanedLikeAnyOther)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto file = makeFile("bad\xff\xfe");
    const auto other = makeFile("worse\x80");
    EXPECT_EQ(clean({ item(file, 1) }, Removal::MoveToTrash).cleanedCount, 1);
    EXPECT_EQ(clean({ item(other, 1) }, Removal::Delete).cleanedCount, 1);
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(CleanerTest, FailuresComeInTheOrderOfTheItems)
{
    const auto result
        = clean({ item(home() / "gone1", 1), item(home() / "gone2", 1), item(home() / "gone3", 1) }, Removal::Delete);
    ASSERT_EQ(result.failures.size(), 3U);
    EXPECT_EQ(result.failures[0].url, home() / "gone1");
    EXPECT_EQ(result.failures[2].url, home() / "gone3");
}

TEST_F(CleanerTest, LackOfMemoryForOneItemIsThatItemsFailure)
{
    const auto first = makeFile("first");
    const auto second = makeFile("second");
    files.beforeRemoving = [&](const std::filesystem::path& path) {
        if (path == first)
            throw std::bad_alloc();
    };
    const auto result = clean({ item(first, 1), item(second, 2) }, Removal::Delete);
    EXPECT_EQ(result.cleanedBytes, 2);
    ASSERT_EQ(result.failures.size(), 1U);
    EXPECT_EQ(result.failures[0].message, std::bad_alloc().what());
}

TEST_F(CleanerTest, HomeFolderAndRootAreRefusedWithAnError)
{
    for (const bool moveToTrash : { false, true }) {
        const auto answer = runInPrivateRoot(folder().path(), [&] {
            const auto real = makeFileManager(Environment::inFolder("/"));
            const auto result = Cleaner::clean(
                { item("/home", 1), item("/", 1), item("relative", 1), item("", 1) }, moveToTrash, *real);
            return std::to_string(result.cleanedCount) + " cleaned, " + std::to_string(result.failures.size())
                + " refused";
        });
        if (!answer)
            GTEST_SKIP() << noPrivateRoot;
        EXPECT_EQ(*answer, "0 cleaned, 4 refused");
    }
}

TEST_F(CleanerTest, UnwritableFolderOfSomebodyElseIsAFailureAndNothingIsLost)
{
    writeFile(folder() / "foreign/file", std::string_view("content"));
    std::filesystem::permissions(folder() / "foreign", std::filesystem::perms(0755));
    const auto answer = runAsOrdinaryUser([&] {
        const auto result = Cleaner::clean({ item(folder() / "foreign/file", 1) }, false, *host().files);
        return std::to_string(result.cleanedCount) + " " + std::to_string(result.failures.size());
    });
    if (geteuid() == 0)
        EXPECT_EQ(answer, "0 1");
    else
        EXPECT_EQ(answer, "1 0");
    EXPECT_EQ(std::filesystem::exists(folder() / "foreign/file"), geteuid() == 0);
}

TEST_F(CleanerTest, HomeIsAskedForOncePerRun)
{
    int asked = 0;
    files.home = [&] {
        ++asked;
        return home();
    };
    clean({ item(makeFile("a"), 1), item(makeFile("b"), 1) }, Removal::Delete);
    EXPECT_EQ(asked, 1);
}

TEST_F(CleanerTest, TotalThatDoesNotFitStopsTheProgram)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_DEATH(clean({ item(makeFile("a"), largest), item(makeFile("b"), 1) }, Removal::Delete), "does not fit");
}

} // namespace Korvane
