// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/TrashFixture.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace Korvane {
namespace {

/// The freedesktop.org Trash, which is more than one folder.
class EmptyTrashLinuxTest : public TrashFixture {
protected:
    std::string emptying() const
    {
        return failureOf([&] { m_files->emptyTrash(m_trash.path); });
    }

    /// Makes a record look as if it were written an hour ago.
    void age(const std::filesystem::path& record) const
    {
        std::filesystem::last_write_time(record, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
};

TEST_F(EmptyTrashLinuxTest, EverythingGoesAndTheFoldersStay)
{
    writeFile(home("file"), "x");
    writeFile(home("folder/inner/file"), "x");
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), home("link"));
    for (const char* name : { "file", "folder", "link" })
        ASSERT_EQ(trashing(home(name)), "");
    writeFile(m_trash.file("without record"), "x");
    writeFile(m_trash.record("without file"), "x");
    age(m_trash.record("without file"));
    writeFile(m_trash.path / "expunged/12/file", "x");
    writeFile(m_trash.path / "directorysizes", "x");
    EXPECT_EQ(emptying(), "");
    for (const char* name : { "files", "info", "expunged" })
        EXPECT_TRUE(std::filesystem::is_empty(m_trash.path / name)) << name;
    EXPECT_FALSE(isThere(m_trash.path / "directorysizes"));
}

TEST_F(EmptyTrashLinuxTest, AMissingTrashCountsAsEmpty)
{
    EXPECT_EQ(emptying(), "");
    EXPECT_FALSE(isThere(m_trash.path));
}

TEST_F(EmptyTrashLinuxTest, WhatCannotBeDeletedKeepsItsRecord)
{
    std::filesystem::create_directory(home("shared"));
    ASSERT_EQ(trashing(home("shared")), "");
    chmod(m_trash.file("shared").c_str(), 01777);
    EXPECT_NE(emptying().find("is a folder shared by all users"), std::string::npos);
    EXPECT_EQ(m_trash.pairs(), "1");
}

TEST_F(EmptyTrashLinuxTest, ARecordWrittenJustNowIsGivenTimeForItsFile)
{
    std::filesystem::create_directories(m_trash.path / "files");
    writeFile(m_trash.record("coming"), "x");
    writeFile(m_trash.record("remains"), "x");
    age(m_trash.record("remains"));
    std::thread mover([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        writeFile(m_trash.file("coming"), "moved meanwhile");
    });
    EXPECT_EQ(emptying(), "");
    mover.join();
    EXPECT_TRUE(isThere(m_trash.record("coming")));
    EXPECT_EQ(readFile(m_trash.file("coming")), "moved meanwhile");
    EXPECT_FALSE(isThere(m_trash.record("remains")));
}

TEST_F(EmptyTrashLinuxTest, LinksInPlaceOfItsFoldersAreNotFollowed)
{
    std::filesystem::create_directories(m_trash.path);
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), m_trash.path / "files");
    EXPECT_NE(emptying().find("is a link"), std::string::npos);
}

TEST_F(EmptyTrashLinuxTest, MovingAndEmptyingAtOnceLosesNothingUnasked)
{
    std::atomic<bool> isDone = false;
    std::thread emptier([&] {
        const auto files = makeFileManager(m_environment);
        while (!isDone)
            failureOf([&] { files->emptyTrash(m_trash.path); });
    });
    for (int i = 0; i < 300; ++i) {
        const auto path = home("item" + std::to_string(i % 3));
        writeFile(path, "x");
        const std::string failure = trashing(path);
        EXPECT_EQ(failure.empty(), !isThere(path)) << failure;
        std::filesystem::remove(path);
    }
    isDone = true;
    emptier.join();
    EXPECT_EQ(emptying(), "");
    EXPECT_EQ(m_trash.pairs(), "0");
}

} // namespace
} // namespace Korvane
