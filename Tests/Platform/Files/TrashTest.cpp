// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/CarefulRename.h"
#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Files/TrashFixture.h"
#include "Tests/Support/EnvironmentVariable.h"
#include "Tests/Support/OrdinaryUser.h"

#include <fcntl.h>
#include <set>
#include <thread>

namespace Korvane {
namespace {

using TrashTest = TrashFixture;

TEST_F(TrashTest, AFileLiesInTheTrashWithARecordThatOnlyItsOwnerReads)
{
    writeFile(home("a b%"), "content");
    const auto before = std::time(nullptr);
    EXPECT_EQ(m_files->trashItem(home("a b%")), m_trash.file("a b%"));
    EXPECT_FALSE(isThere(home("a b%")));
    EXPECT_EQ(readFile(m_trash.file("a b%")), "content");
    EXPECT_EQ(m_trash.originalPath("a b%"), m_environment.home.native() + "/a%20b%25");
    EXPECT_EQ(modeOf(m_trash.record("a b%")), 0600U);
    EXPECT_EQ(modeOf(m_trash.path), 0700U);
    EXPECT_EQ(modeOf(m_trash.path / "files"), 0700U);
    const std::string text = readFile(m_trash.record("a b%"));
    std::tm date{};
    ASSERT_NE(strptime(text.c_str() + text.find("\nDeletionDate=") + 14, "%Y-%m-%dT%H:%M:%S\n", &date), nullptr);
    date.tm_isdst = -1;
    EXPECT_GE(std::mktime(&date), before);
    EXPECT_LE(std::mktime(&date), std::time(nullptr));
}

TEST_F(TrashTest, AVanishedItemIsReportedAndLeavesNothing)
{
    EXPECT_EQ(trashing(home("vanished")), "No such file or directory");
    EXPECT_FALSE(isThere(m_environment.dataHome()));
}

TEST_F(TrashTest, FoldersLinksAndPipesAreMovedWhole)
{
    writeFile(home("folder/inner/file"), "x");
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), home("link"));
    std::filesystem::create_symlink("nowhere", home("broken"));
    ASSERT_EQ(mkfifo(home("pipe").c_str(), 0600), 0);
    for (const char* name : { "folder", "link", "broken", "pipe" }) {
        EXPECT_EQ(trashing(home(name)), "") << name;
        EXPECT_FALSE(isThere(home(name))) << name;
    }
    EXPECT_EQ(readFile(m_trash.file("folder/inner/file")), "x");
    EXPECT_EQ(std::filesystem::read_symlink(m_trash.file("link")), m_sentinel.path().parent_path());
    EXPECT_EQ(std::filesystem::read_symlink(m_trash.file("broken")), "nowhere");
    EXPECT_TRUE(std::filesystem::is_fifo(m_trash.file("pipe")));
    EXPECT_EQ(m_trash.pairs(), "4");
}

TEST_F(TrashTest, TakenNamesAreNotReplaced)
{
    for (int i = 0; i < 3; ++i) {
        writeFile(home("same"), std::to_string(i));
        EXPECT_EQ(trashing(home("same")), "");
    }
    EXPECT_EQ(readFile(m_trash.file("same")), "0");
    EXPECT_EQ(readFile(m_trash.file("same.2")), "1");
    EXPECT_EQ(readFile(m_trash.file("same.3")), "2");
    EXPECT_EQ(m_trash.originalPath("same.3"), home("same").native());
}

TEST_F(TrashTest, ANameTakenByAFileWithoutRecordIsNotReplaced)
{
    writeFile(m_trash.file("same"), "other");
    writeFile(home("same"), "ours");
    EXPECT_EQ(m_files->trashItem(home("same")), m_trash.file("same.2"));
    EXPECT_EQ(readFile(m_trash.file("same")), "other");
    EXPECT_FALSE(isThere(m_trash.record("same")));
}

TEST_F(TrashTest, ThousandsOfTakenNamesCostLittle)
{
    for (int i = 1; i <= 5000; ++i)
        writeFile(m_trash.record(i == 1 ? "same" : "same." + std::to_string(i)), "taken");
    writeFile(home("same"), "x");
    const auto start = std::chrono::steady_clock::now();
    const auto moved = m_files->trashItem(home("same"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(readFile(moved), "x");
    EXPECT_EQ(readFile(m_trash.record("same.17")), "taken");
}

TEST_F(TrashTest, LongNamesAreShortenedToLeaveRoomForTheRecord)
{
    std::set<std::filesystem::path> moved;
    for (const std::string& name : { std::string(255, 'n'), std::string(246, 'n'), std::string(245, 'n') }) {
        writeFile(home(name), name);
        moved.insert(m_files->trashItem(home(name)));
        EXPECT_FALSE(isThere(home(name)));
    }
    EXPECT_EQ(moved.size(), 3U);
    EXPECT_EQ(m_trash.pairs(), "3");
    EXPECT_EQ(m_trash.originalPath(std::string(245, 'n')), home(std::string(255, 'n')).native());
}

TEST_F(TrashTest, NamesOfAnyBytes)
{
    int count = 0;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte == '/')
            continue;
        const std::string name = std::string("b") + static_cast<char>(byte) + "e";
        writeFile(home(name), name);
        EXPECT_EQ(m_files->trashItem(home(name)), m_trash.file(name));
        EXPECT_EQ(readFile(m_trash.file(name)), name);
        ++count;
    }
    EXPECT_EQ(m_trash.pairs(), std::to_string(count));
}

TEST_F(TrashTest, TheTrashIsNotMovedIntoItself)
{
    writeFile(home("file"), "x");
    EXPECT_EQ(trashing(home("file")), "");
    for (const auto& path : { m_trash.path, m_trash.path.parent_path(), home(".local") }) {
        EXPECT_NE(trashing(path).find("holds the Trash"), std::string::npos) << path;
        EXPECT_TRUE(isThere(path));
    }
    EXPECT_EQ(m_trash.pairs(), "1");
}

TEST_F(TrashTest, AFolderThatWouldHoldTheTrashIsNotMoved)
{
    std::filesystem::create_directory(home(".local"));
    EXPECT_NE(trashing(home(".local")).find("holds the Trash"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(home(".local")));
}

TEST_F(TrashTest, TheDataFolderMayBeElsewhere)
{
    m_environment.xdgDataHome = m_folder / "data";
    m_files = makeFileManager(m_environment);
    writeFile(home("file"), "x");
    EXPECT_EQ(m_files->trashItem(home("file")), m_folder / "data/Trash/files/file");
    EXPECT_EQ(m_files->additionalTrashDirectories(), std::vector{ m_folder / "data/Trash" });
}

TEST_F(TrashTest, APathWithDotsIsRecordedAsWhatItComesTo)
{
    writeFile(home("one/file"), "x");
    std::filesystem::create_directory(home("two"));
    EXPECT_EQ(trashing(home("two/../one/./file")), "");
    EXPECT_EQ(m_trash.originalPath("file"), home("one/file").native());
}

TEST_F(TrashTest, AReadOnlyFolderIsMovedAndStaysReadOnly)
{
    writeFile(home("item/inner/file"), "x");
    giveToOrdinaryUser(m_environment.home);
    chmod(home("item/inner").c_str(), 0555);
    chmod(home("item").c_str(), 0555);
    EXPECT_EQ(runAsOrdinaryUser([&] { return trashing(home("item")); }), "");
    EXPECT_EQ(modeOf(m_trash.file("item")), 0555U);
    EXPECT_EQ(modeOf(m_trash.file("item/inner")), 0555U);
    EXPECT_EQ(readFile(m_trash.file("item/inner/file")), "x");
    EXPECT_EQ(m_trash.pairs(), "1");
}

TEST_F(TrashTest, WhatCannotBeMovedStaysAndLeavesNoRecord)
{
    writeFile(home("closed/item/file"), "x");
    giveToOrdinaryUser(m_environment.home);
    chmod(home("closed/item").c_str(), 0555);
    chmod(home("closed").c_str(), 0555);
    EXPECT_EQ(runAsOrdinaryUser([&] { return trashing(home("closed/item")); }), "Permission denied");
    EXPECT_EQ(modeOf(home("closed/item")), 0555U);
    EXPECT_EQ(m_trash.pairs(), "0");
}

TEST_F(TrashTest, AReadOnlyHomeIsReported)
{
    writeFile(home("item/file"), "x");
    giveToOrdinaryUser(m_environment.home);
    chmod(m_environment.home.c_str(), 0555);
    EXPECT_EQ(
        runAsOrdinaryUser([&] { return trashing(home("item/file")); }), "Permission denied: " + m_trash.path.native());
    EXPECT_EQ(readFile(home("item/file")), "x");
}

TEST_F(TrashTest, PathsLongerThanTheSystemTakes)
{
    const auto path = makeLongFolder(m_environment.home, { "file" });
    EXPECT_EQ(trashing(path / "file"), "");
    EXPECT_FALSE(m_files->fileExists(path / "file"));
    EXPECT_TRUE(isThere(m_trash.file("file")));
    EXPECT_EQ(m_trash.originalPath("file"), (path / "file").native());
}

TEST_F(TrashTest, SeveralAtOnceTakeDifferentNames)
{
    constexpr int each = 100;
    const auto work = [&](int worker) {
        const auto files = makeFileManager(m_environment);
        for (int i = 0; i < each; ++i) {
            const auto path = home(std::to_string(worker)) / "same";
            writeFile(path, std::to_string(worker) + "-" + std::to_string(i));
            files->trashItem(path);
        }
    };
    std::thread other([&] { work(1); });
    work(2);
    other.join();
    std::set<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(m_trash.path / "files"))
        contents.insert(readFile(entry.path()));
    EXPECT_EQ(contents.size(), 2U * each);
    EXPECT_EQ(m_trash.pairs(), std::to_string(2 * each));
}

TEST_F(TrashTest, WithoutTheSystemsHelpNothingIsReplacedEither)
{
    writeFile(home("file"), "ours");
    writeFile(home("folder/inner"), "ours");
    writeFile(home("target/file"), "other");
    std::filesystem::create_directory(home("target/folder"));
    FileDescriptor target;
    ASSERT_EQ(openForTraversal(home("target").native(), target), 0);
    EXPECT_EQ(renameOntoPlaceholder(findItem(home("file")), target.get(), "file"), EEXIST);
    EXPECT_EQ(renameOntoPlaceholder(findItem(home("folder")), target.get(), "folder"), EEXIST);
    EXPECT_EQ(readFile(home("target/file")), "other");
    EXPECT_EQ(renameOntoPlaceholder(findItem(home("file")), target.get(), "file2"), 0);
    EXPECT_EQ(renameOntoPlaceholder(findItem(home("folder")), target.get(), "folder2"), 0);
    EXPECT_EQ(readFile(home("target/file2")), "ours");
    EXPECT_EQ(readFile(home("target/folder2/inner")), "ours");
    EXPECT_EQ(renameOntoPlaceholder(findItem(home("target")), target.get(), "self"), EINVAL);
    EXPECT_FALSE(isThere(home("target/self")));
}

} // namespace
} // namespace Korvane
