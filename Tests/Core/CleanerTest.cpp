// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Cleaning/Cleaner.h"

#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>

namespace Korvane {

namespace {

enum class Removal { MoveToTrash, Delete };

class CleanerTest : public ScanFixture {
protected:
    CleanerTest()
        : sentinel(home() / "Documents/keep.txt")
        , files(host().files)
    {
    }

    ~CleanerTest() override { EXPECT_EQ(sentinel.difference(), ""); }

    Cleaner::Result clean(const std::vector<ScanItem>& items, Removal removal)
    {
        return Cleaner::clean(items, removal == Removal::MoveToTrash, files);
    }

    static ScanItem item(const std::filesystem::path& url, std::int64_t size)
    {
        return { url, std::nullopt, "Category", size, true };
    }

    std::filesystem::path makeFile(const std::filesystem::path& relative)
    {
        writeFile(home() / relative, std::string_view("content"));
        return home() / relative;
    }

    std::filesystem::path freedesktopTrash() { return host().files->additionalTrashDirectories().at(0); }

    Sentinel sentinel;
    ForwardingFileManager files;
};

std::size_t countEntries(const std::filesystem::path& folder)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        count += entry.exists() ? 1 : 0;
    return count;
}

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
    EXPECT_EQ(readFile(freedesktopTrash() / "files/old.log"), "content");
    EXPECT_TRUE(std::filesystem::exists(freedesktopTrash() / "info/old.log.trashinfo"));
}

TEST_F(CleanerTest, OrdinaryFileIsGoneWhenDeleted)
{
    const auto file = makeFile("old.log");
    const auto result = clean({ item(file, 4096) }, Removal::Delete);
    EXPECT_EQ(result, (Cleaner::Result{ 4096, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FALSE(std::filesystem::exists(freedesktopTrash() / "files/old.log"));
}

TEST_F(CleanerTest, TrashItselfIsEmptiedAndStays)
{
    makeFile(".Trash/a");
    makeFile(".Trash/.hidden");
    makeFile(".Trash/folder/deep/file");
    const auto result = clean({ item(home() / ".Trash", 12'345) }, Removal::MoveToTrash);
    EXPECT_EQ(result, (Cleaner::Result{ 12'345, 1, {} }));
    EXPECT_TRUE(std::filesystem::is_directory(home() / ".Trash"));
    EXPECT_TRUE(std::filesystem::is_empty(home() / ".Trash"));
    EXPECT_TRUE(files.trashed().empty());
}

TEST_F(CleanerTest, EmptyTrashCountsAsCleanedOnce)
{
    std::filesystem::create_directory(home() / ".Trash");
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::Delete), (Cleaner::Result{ 7, 1, {} }));
}

TEST_F(CleanerTest, TrashThatCannotBeListedCountsAsCleaned)
{
    const auto kept = makeFile(".Trash/a");
    files.beforeListing = [](const std::filesystem::path& folder) {
        throw FileError(folder, std::make_error_code(std::errc::permission_denied));
    };
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash), (Cleaner::Result{ 7, 1, {} }));
    EXPECT_TRUE(std::filesystem::exists(kept));
}

TEST_F(CleanerTest, MissingTrashCountsAsCleaned)
{
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash), (Cleaner::Result{ 7, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(home() / ".Trash"));
}

TEST_F(CleanerTest, EmptyingStopsAtTheFirstChildThatCannotBeDeleted)
{
    for (const char* name : { ".Trash/a", ".Trash/b", ".Trash/c" })
        makeFile(name);
    const auto order = host().files->contentsOfDirectory(home() / ".Trash");
    files.beforeRemoving = [&](const std::filesystem::path& path) {
        if (path == order[1])
            throw FileError(path, std::make_error_code(std::errc::operation_not_permitted));
    };
    const auto result = clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash);
    EXPECT_EQ(result.cleanedBytes, 0);
    EXPECT_EQ(result.cleanedCount, 0);
    ASSERT_EQ(result.failures.size(), 1U);
    EXPECT_EQ(result.failures[0].url, home() / ".Trash");
    EXPECT_EQ(result.failures[0].message,
        FileError(order[1], std::make_error_code(std::errc::operation_not_permitted)).localizedDescription());
    EXPECT_FALSE(std::filesystem::exists(order[0]));
    EXPECT_TRUE(std::filesystem::exists(order[1]));
    EXPECT_TRUE(std::filesystem::exists(order[2]));
}

TEST_F(CleanerTest, ItemInsideTheTrashIsDeletedThoughTheTrashWasAskedFor)
{
    const auto file = makeFile(".Trash/inner/old.log");
    EXPECT_EQ(clean({ item(file, 5) }, Removal::MoveToTrash), (Cleaner::Result{ 5, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(files.trashed().empty());
    EXPECT_EQ(files.removed(), std::vector{ file });
}

TEST_F(CleanerTest, NameThatOnlyBeginsLikeTheTrashIsAnOrdinaryItem)
{
    const auto file = makeFile(".Trashed");
    const auto lower = makeFile(".trash");
    EXPECT_EQ(clean({ item(file, 1), item(lower, 1) }, Removal::MoveToTrash).cleanedCount, 2);
    EXPECT_EQ(files.trashed(), (std::vector{ file, lower }));
}

TEST_F(CleanerTest, TrashWithASlashBehindItIsNeitherTheTrashNorInsideIt)
{
    const auto withSlash = home() / ".Trash/";
    EXPECT_EQ(Cleaner::action(withSlash, true, files), Cleaner::Action::MoveToTrash);
    EXPECT_EQ(Cleaner::action(withSlash, false, files), Cleaner::Action::Delete);
    EXPECT_EQ(Cleaner::action(home() / ".Trash", false, files), Cleaner::Action::EmptyTrash);
    EXPECT_EQ(Cleaner::action(home() / ".Trash/a", true, files), Cleaner::Action::Delete);
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
    const auto result = clean({ item(home(), 1), item("/", 1), item("relative", 1), item("", 1) }, Removal::Delete);
    EXPECT_EQ(result.cleanedCount, 0);
    EXPECT_EQ(result.failures.size(), 4U);
    EXPECT_TRUE(std::filesystem::is_directory(home()));
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

TEST_F(CleanerTest, FreedesktopTrashIsEmptiedAndStays)
{
    const auto file = makeFile("old.log");
    clean({ item(file, 1) }, Removal::MoveToTrash);
    ASSERT_EQ(countEntries(freedesktopTrash() / "files"), 1U);
    const auto result = clean({ item(freedesktopTrash(), 4096) }, Removal::MoveToTrash);
    EXPECT_EQ(result, (Cleaner::Result{ 4096, 1, {} }));
    EXPECT_TRUE(std::filesystem::is_directory(freedesktopTrash()));
    EXPECT_FALSE(std::filesystem::exists(freedesktopTrash() / "files/old.log"));
    EXPECT_FALSE(std::filesystem::exists(freedesktopTrash() / "info/old.log.trashinfo"));
    EXPECT_EQ(files.emptied(), std::vector{ freedesktopTrash() });
}

TEST_F(CleanerTest, ItemInsideTheFreedesktopTrashIsDeleted)
{
    clean({ item(makeFile("old.log"), 1) }, Removal::MoveToTrash);
    const auto inTrash = freedesktopTrash() / "files/old.log";
    EXPECT_EQ(clean({ item(inTrash, 2) }, Removal::MoveToTrash), (Cleaner::Result{ 2, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(inTrash));
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
