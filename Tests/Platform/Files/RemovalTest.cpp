// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/ChildProcess.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace Korvane {
namespace {

using RemovalTest = FileManagerFixture;

/// A chain of folders, each with a file beside the next one, made by descriptors: no path could name it.
void makeDeepTree(const std::filesystem::path& top, int depth)
{
    std::filesystem::create_directories(top);
    int folder = open(top.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < depth; ++level) {
        const int file = openat(folder, "file", O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        close(file);
        ASSERT_EQ(mkdirat(folder, "deeper", 0700), 0);
        const int next = openat(folder, "deeper", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ASSERT_GE(next, 0);
        close(folder);
        folder = next;
    }
    close(folder);
}

TEST_F(RemovalTest, AFileIsGone)
{
    writeFile(home("file"), "x");
    EXPECT_EQ(removing(home("file")), "");
    EXPECT_FALSE(isThere(home("file")));
}

TEST_F(RemovalTest, AVanishedItemIsReportedInThePlatformsWords)
{
    try {
        m_files->removeItem(home("vanished"));
        FAIL() << "what is not there was removed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.localizedDescription(), "No such file or directory");
        EXPECT_EQ(error.path(), home("vanished"));
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
    EXPECT_EQ(removing(home("no/such/folder")), "No such file or directory");
}

TEST_F(RemovalTest, LinksAreRemovedAndNotFollowed)
{
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), home("link"));
    std::filesystem::create_symlink(m_folder / "nowhere", home("broken"));
    EXPECT_EQ(removing(home("link")), "");
    EXPECT_EQ(removing(home("broken")), "");
    EXPECT_FALSE(isThere(home("link")));
    EXPECT_FALSE(isThere(home("broken")));
}

TEST_F(RemovalTest, SlashesAtTheEndDoNotMakeALinkAFolder)
{
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), home("link"));
    EXPECT_EQ(removing(home("link").native() + "//"), "");
    EXPECT_FALSE(isThere(home("link")));
}

TEST_F(RemovalTest, LinksInsideATreeAreRemovedAndNotFollowed)
{
    std::filesystem::create_directories(home("item/inner"));
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), home("item/inner/folder"));
    std::filesystem::create_symlink(m_sentinel.path(), home("item/inner/file"));
    std::filesystem::create_directory_symlink(home("item"), home("item/inner/loop"));
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, PipesAndSocketsAreRemoved)
{
    std::filesystem::create_directories(home("item"));
    ASSERT_EQ(mkfifo(home("item/pipe").c_str(), 0600), 0);
    const int unixSocket = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    home("item/socket").native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(unixSocket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(unixSocket);
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, DepthIsNoLimit)
{
    makeDeepTree(home("item"), 20000);
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, DepthIsNoLimitWithFewDescriptors)
{
    makeDeepTree(home("item"), 20000);
    const std::string answer = runInChild([&] {
        const rlimit few{ 64, 64 };
        return setrlimit(RLIMIT_NOFILE, &few) == 0 ? removing(home("item")) : "no limit could be set";
    });
    EXPECT_EQ(answer, "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, WidthAndDepthTogetherWithFewDescriptors)
{
    std::filesystem::path folder = home("item");
    for (int level = 0; level < 60; ++level) {
        for (int side = 0; side < 40; ++side)
            writeFile(folder / ("side" + std::to_string(side)) / "file", "x");
        folder /= "d";
    }
    const std::string answer = runInChild([&] {
        const rlimit few{ 64, 64 };
        return setrlimit(RLIMIT_NOFILE, &few) == 0 ? removing(home("item")) : "no limit could be set";
    });
    EXPECT_EQ(answer, "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, MoreSubfoldersThanAreRememberedAtOnce)
{
    for (int i = 0; i < 15000; ++i)
        std::filesystem::create_directories(home("item") / std::to_string(i));
    writeFile(home("item/7/file"), "x");
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, ABigTreeSharedAmongThreads)
{
    for (int i = 0; i < 600; ++i) {
        for (int file = 0; file < 20; ++file)
            writeFile(home("item") / std::to_string(i % 9) / std::to_string(i) / std::to_string(file), "x");
    }
    EXPECT_EQ(removing(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalTest, PathsLongerThanTheSystemTakes)
{
    std::filesystem::create_directory(home("top"));
    const auto path = makeLongFolder(home("top"), { "file", "other" });
    EXPECT_TRUE(m_files->fileExists(path / "file"));
    EXPECT_FALSE(m_files->fileExists(path / "none"));
    EXPECT_EQ(m_files->contentsOfDirectory(path).size(), 2U);
    EXPECT_EQ(removing(path / "file"), "");
    EXPECT_EQ(m_files->contentsOfDirectory(path), std::vector{ path / "other" });
    EXPECT_EQ(removing(path), "");
    EXPECT_FALSE(m_files->fileExists(path));
    EXPECT_TRUE(m_files->fileExists(path.parent_path()));
}

} // namespace
} // namespace Korvane
