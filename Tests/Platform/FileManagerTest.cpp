// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileManager.h"

#include "Platform/FileError.h"
#include "Tests/Support/CancelMidway.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <set>

namespace Korvane {
namespace {

class FileManagerTest : public testing::Test {
protected:
    TemporaryFolder m_folder;
    Environment m_environment = Environment::inFolder(m_folder.path());
    std::shared_ptr<FileManager> m_files = makeFileManager(m_environment);
};

TEST_F(FileManagerTest, KnowsTheUsersPlaces)
{
    EXPECT_EQ(m_files->homeDirectoryForCurrentUser(), m_environment.home);
    EXPECT_EQ(m_files->temporaryDirectory(), m_environment.temporaryDirectory);
}

TEST_F(FileManagerTest, ListsHiddenEntriesOnlyWhenAsked)
{
    writeFile(m_folder / "list/seen", "x");
    writeFile(m_folder / "list/.hidden", "x");
    const auto all = m_files->contentsOfDirectory(m_folder / "list");
    const std::set<std::filesystem::path> expected{ m_folder / "list/seen", m_folder / "list/.hidden" };
    EXPECT_EQ(std::set<std::filesystem::path>(all.begin(), all.end()), expected);
    const std::vector<std::filesystem::path> seen{ m_folder / "list/seen" };
    EXPECT_EQ(m_files->contentsOfDirectory(m_folder / "list", HiddenFiles::Skipped), seen);
}

TEST_F(FileManagerTest, SaysWhyAFolderCannotBeListed)
{
    try {
        m_files->contentsOfDirectory(m_folder / "none");
        FAIL() << "a missing folder was listed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), m_folder / "none");
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_EQ(error.localizedDescription(), "No such file or directory");
    }
}

TEST_F(FileManagerTest, StopsListingWhenCancelled)
{
    constexpr int files = 20'000;
    for (int index = 0; index < files; ++index)
        writeFile(m_folder / "many" / std::to_string(index), "");
    const auto list = [&](const Cancellation& cancellation) {
        const auto children = m_files->contentsOfDirectory(m_folder / "many", HiddenFiles::Skipped, cancellation);
        EXPECT_EQ(children.size(), static_cast<std::size_t>(files));
    };
    EXPECT_TRUE(stopsWhenCancelled(list, std::chrono::milliseconds(1)));
}

TEST_F(FileManagerTest, FollowsLinksToSeeWhetherSomethingExists)
{
    writeFile(m_folder / "there", "x");
    std::filesystem::create_symlink(m_folder / "there", m_folder / "good");
    std::filesystem::create_symlink(m_folder / "nowhere", m_folder / "broken");
    EXPECT_TRUE(m_files->fileExists(m_folder / "there"));
    EXPECT_TRUE(m_files->fileExists(m_folder / "good"));
    EXPECT_FALSE(m_files->fileExists(m_folder / "broken"));
    EXPECT_FALSE(m_files->fileExists(m_folder / "there" / "below"));
    EXPECT_FALSE(m_files->fileExists({}));
}

TEST_F(FileManagerTest, RemovesATreeButNotWhatItsLinksName)
{
    const Sentinel sentinel(m_folder / "outside/kept");
    for (int i = 0; i < 40; ++i)
        writeFile(m_folder / "item" / std::to_string(i % 7) / "inner" / std::to_string(i), "x");
    std::filesystem::create_directory_symlink(m_folder / "outside", m_folder / "item/3/link");
    m_files->removeItem(m_folder / "item");
    EXPECT_FALSE(std::filesystem::exists(m_folder / "item"));
    EXPECT_EQ(sentinel.difference(), "");
}

} // namespace
} // namespace Korvane
