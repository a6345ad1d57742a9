// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/SmallFile.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestHost.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

TEST(TemporaryFolder, RemovesNamesOfAnyBytes)
{
    if (!takesNamesOfAnyBytes(TemporaryFolder().path()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    std::filesystem::path path;
    {
        const TemporaryFolder folder;
        path = folder.path();
        writeFile(folder / "odd \xFF\n name", "x");
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TemporaryFolder, RemovesOddNamesClosedFoldersAndLinksButNotWhatTheyName)
{
    const TemporaryFolder outside;
    const Sentinel sentinel(outside / "kept");
    std::filesystem::path path;
    {
        const TemporaryFolder folder;
        path = folder.path();
        writeFile(folder / "odd \n name", "x");
        writeFile(folder / std::string(255, 'n'), "x");
        writeFile(folder / "closed/inner/file", "x");
        std::filesystem::create_directory_symlink(outside.path(), folder / "link");
        std::filesystem::create_symlink(sentinel.path(), folder / "closed/link");
        ::chmod((folder / "closed/inner").c_str(), 0000);
        ::chmod((folder / "closed").c_str(), 0500);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(sentinel.difference(), "");
}

TEST(TemporaryFolder, IsRemovedByAnOrdinaryUserToo)
{
    EXPECT_EQ(runAsOrdinaryUser([] {
        std::filesystem::path path;
        {
            const TemporaryFolder folder;
            path = folder.path();
            writeFile(folder / "closed/inner/file", "x");
            ::chmod((folder / "closed/inner").c_str(), 0000);
            ::chmod((folder / "closed").c_str(), 0000);
        }
        return std::string(std::filesystem::exists(path) ? "left" : "gone");
    }),
        "gone");
}

TEST(TemporaryFolder, RemovesATreeDeeperThanAnyPath)
{
    std::filesystem::path path;
    {
        const TemporaryFolder folder;
        path = folder.path();
        int current = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        for (int depth = 0; depth < 1000; ++depth) {
            ASSERT_EQ(::mkdirat(current, "folder", 0700), 0);
            const int next = ::openat(current, "folder", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            ASSERT_GE(next, 0);
            ::close(current);
            current = next;
        }
        ::close(current);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Sentinel, NoticesEveryChange)
{
    const TemporaryFolder folder;
    const Sentinel sentinel(folder / "sentinel");
    EXPECT_TRUE(sentinel.isUnchanged());
    ::chmod(sentinel.path().c_str(), 0600);
    EXPECT_FALSE(sentinel.isUnchanged());

    const Sentinel other(folder / "other");
    writeFile(other.path(), "something else");
    EXPECT_FALSE(other.isUnchanged());

    const Sentinel gone(folder / "gone");
    std::filesystem::remove(gone.path());
    EXPECT_NE(gone.difference().find("is missing"), std::string::npos);
}

TEST(OrdinaryUser, AnswersThrowsAndDies)
{
    EXPECT_EQ(runAsOrdinaryUser([] { return std::string(100'000, 'a'); }), std::string(100'000, 'a'));
    EXPECT_EQ(runAsOrdinaryUser([]() -> std::string { throw std::runtime_error("why"); }), "exception: why");
    EXPECT_EQ(runAsOrdinaryUser([]() -> std::string {
        ::raise(SIGKILL);
        return "";
    }),
        "died of signal 9");
    EXPECT_EQ(runAsOrdinaryUser([] { return std::string(::geteuid() == 0 ? "root" : "ordinary"); }), "ordinary");
}

TEST(TestHost, WorksOnItsOwnHomeAndPlaysTheDesktop)
{
    const TemporaryFolder folder;
    const auto [host, workspace] = makeTestHost(folder);
    EXPECT_EQ(host.files->homeDirectoryForCurrentUser(), folder / "home");
    workspace->setRunning({ "com.example.Editor" });
    ASSERT_EQ(host.workspace->runningApplications().size(), 1U);
    EXPECT_EQ(host.workspace->runningApplications()[0].bundleIdentifier, "com.example.Editor");
    EXPECT_TRUE(host.workspace->open("https://example.org"));
    workspace->setRefusing(true);
    EXPECT_FALSE(host.workspace->showInFileManager("/x"));
    EXPECT_EQ(workspace->openedUrls(), std::vector<std::string>{ "https://example.org" });
    EXPECT_EQ(workspace->shownPaths(), std::vector<std::filesystem::path>{ "/x" });
}

TEST(SmallFile, GivesWholeFilesUpToTheLimitAndNoOthers)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", std::size_t{ 100'000 });
    EXPECT_EQ(contentsOfSmallFile(folder / "file", 100'000)->size(), 100'000U);
    EXPECT_FALSE(contentsOfSmallFile(folder / "file", 99'999));
    EXPECT_EQ(errno, EFBIG);
    EXPECT_FALSE(contentsOfSmallFile(folder.path(), 10));
    EXPECT_EQ(errno, EINVAL);
    EXPECT_FALSE(contentsOfSmallFile(folder / "missing", 10));
    EXPECT_EQ(errno, ENOENT);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(contentsOfSmallFile(folder / "pipe", 10)) << "and did not wait";
    writeFile(folder / "empty", "");
    EXPECT_EQ(contentsOfSmallFile(folder / "empty", 0), "");
}

} // namespace
} // namespace Korvane
