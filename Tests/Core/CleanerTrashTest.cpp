// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/CleanerFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

/// Cleaning of the Trash itself, and of what lies in it.
class CleanerTrashTest : public CleanerFixture { };

} // namespace

TEST_F(CleanerTrashTest, TrashItselfIsEmptiedAndStays)
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

TEST_F(CleanerTrashTest, EmptyTrashCountsAsCleanedOnce)
{
    std::filesystem::create_directory(home() / ".Trash");
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::Delete), (Cleaner::Result{ 7, 1, {} }));
}

TEST_F(CleanerTrashTest, TrashThatCannotBeListedCountsAsCleaned)
{
    const auto kept = makeFile(".Trash/a");
    files.beforeListing = [](const std::filesystem::path& folder) {
        throw FileError(folder, std::make_error_code(std::errc::permission_denied));
    };
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash), (Cleaner::Result{ 7, 1, {} }));
    EXPECT_TRUE(std::filesystem::exists(kept));
}

TEST_F(CleanerTrashTest, MissingTrashCountsAsCleaned)
{
    EXPECT_EQ(clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash), (Cleaner::Result{ 7, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(home() / ".Trash"));
}

TEST_F(CleanerTrashTest, EmptyingStopsAtTheFirstChildThatCannotBeDeleted)
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

TEST_F(CleanerTrashTest, TrashThatIsALinkIsAFailureAndWhatItLeadsToIsKept)
{
    const auto kept = makeFile("Pictures/holiday.jpg");
    std::filesystem::create_directory_symlink(home() / "Pictures", home() / ".Trash");
    const auto result = clean({ item(home() / ".Trash", 7) }, Removal::MoveToTrash);
    EXPECT_EQ(result.cleanedCount, 0);
    ASSERT_EQ(result.failures.size(), 1U);
    EXPECT_NE(result.failures[0].message.find("is a link"), std::string::npos) << result.failures[0].message;
    EXPECT_TRUE(std::filesystem::exists(kept));
    EXPECT_TRUE(std::filesystem::is_symlink(home() / ".Trash"));
}

TEST_F(CleanerTrashTest, ItemInsideTheTrashIsDeletedThoughTheTrashWasAskedFor)
{
    const auto file = makeFile(".Trash/inner/old.log");
    EXPECT_EQ(clean({ item(file, 5) }, Removal::MoveToTrash), (Cleaner::Result{ 5, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(files.trashed().empty());
    EXPECT_EQ(files.removed(), std::vector{ file });
}

TEST_F(CleanerTrashTest, NameThatOnlyBeginsLikeTheTrashIsAnOrdinaryItem)
{
    const auto file = makeFile(".Trashed");
    const auto lower = makeFile(".trash");
    EXPECT_EQ(clean({ item(file, 1), item(lower, 1) }, Removal::MoveToTrash).cleanedCount, 2);
    EXPECT_EQ(files.trashed(), (std::vector{ file, lower }));
}

TEST_F(CleanerTrashTest, TrashWithASlashBehindItIsNeitherTheTrashNorInsideIt)
{
    const auto withSlash = home() / ".Trash/";
    EXPECT_EQ(Cleaner::action(withSlash, true, files), Cleaner::Action::MoveToTrash);
    EXPECT_EQ(Cleaner::action(withSlash, false, files), Cleaner::Action::Delete);
    EXPECT_EQ(Cleaner::action(home() / ".Trash", false, files), Cleaner::Action::EmptyTrash);
    EXPECT_EQ(Cleaner::action(home() / ".Trash/a", true, files), Cleaner::Action::Delete);
}

} // namespace Korvane
