// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileAttributes.h"

#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {
namespace {

class FileAttributesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    std::filesystem::path file = folder / "file";
};

TEST_F(FileAttributesTest, AreAllFalseWhenNothingIsThere)
{
    const auto attributes = attributesOfItem(file);
    EXPECT_FALSE(attributes.exists || attributes.isDirectory || attributes.isOwnedByCurrentUser
        || attributes.isSharedSticky || attributes.isSocketOrPipe || attributes.isLocked);
    EXPECT_FALSE(attributesOfItem("").exists);
    EXPECT_FALSE(attributesOfItem(std::string(10'000, 'x')).exists);
}

TEST_F(FileAttributesTest, DescribeAFileOfTheUser)
{
    writeFile(file, "x");
    const std::array<timespec, 2> times{ { { 5, 0 }, { 1'700'000'000, 123'456'789 } } };
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
    const auto attributes = attributesOfItem(file);
    EXPECT_TRUE(attributes.exists);
    EXPECT_FALSE(attributes.isDirectory);
    EXPECT_TRUE(attributes.isOwnedByCurrentUser);
    EXPECT_FALSE(attributes.isSharedSticky);
    EXPECT_FALSE(attributes.isSocketOrPipe);
    EXPECT_FALSE(attributes.isLocked);
    EXPECT_EQ(attributes.contentModificationDate.time_since_epoch().count(), 1'700'000'000'123'456'789);
}

TEST_F(FileAttributesTest, KeepADateThatLiesBeyondAllCountingInItsDirection)
{
    writeFile(file, "x");
    constexpr time_t year2300 = 10'413'792'000;
    const std::array<timespec, 2> times{ { { 5, 0 }, { year2300, 0 } } };
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
    struct stat status { };
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    if (status.st_mtime != year2300)
        GTEST_SKIP() << "this file system keeps no date after 2262";
    EXPECT_EQ(attributesOfItem(file).contentModificationDate, FileAttributes().contentModificationDate.max());
}

TEST_F(FileAttributesTest, DescribeALinkAndNotWhatItNames)
{
    std::filesystem::create_symlink("/tmp", file);
    EXPECT_TRUE(attributesOfItem(file).exists);
    EXPECT_FALSE(attributesOfItem(file).isDirectory);
    EXPECT_FALSE(attributesOfItem(file).isSharedSticky);
    std::filesystem::create_symlink("nowhere", folder / "broken");
    EXPECT_TRUE(attributesOfItem(folder / "broken").exists);
}

TEST_F(FileAttributesTest, KnowASharedStickyFolderByItsMode)
{
    std::filesystem::create_directory(file);
    struct Case {
        mode_t mode;
        bool isSharedSticky;
    };
    for (const auto& [mode, isSharedSticky] :
        { Case{ 01777, true }, Case{ 01770, true }, Case{ 01755, false }, Case{ 0777, false } }) {
        ASSERT_EQ(::chmod(file.c_str(), mode), 0);
        EXPECT_TRUE(attributesOfItem(file).isDirectory);
        EXPECT_EQ(attributesOfItem(file).isSharedSticky, isSharedSticky) << std::oct << mode;
    }
}

TEST_F(FileAttributesTest, KnowSocketsAndPipesWithoutOpeningThem)
{
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(attributesOfItem(file).isSocketOrPipe);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto path = (folder / "socket").native();
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_TRUE(attributesOfItem(path).isSocketOrPipe);
    ::close(socket);
}

TEST_F(FileAttributesTest, KnowWhoseAnItemIs)
{
    writeFile(file, "x");
    giveToOrdinaryUser(folder.path());
    EXPECT_EQ(attributesOfItem(file).isOwnedByCurrentUser, ::geteuid() != 0);
    EXPECT_EQ(
        runAsOrdinaryUser([&] { return std::string(attributesOfItem(file).isOwnedByCurrentUser ? "own" : "no"); }),
        "own");
}

/// Another process that has run `lock` on the opened file and keeps it until the end of its life.
class LockHolder {
public:
    LockHolder(const std::filesystem::path& path, int flags, const std::function<int(int)>& lock)
    {
        std::array<int, 2> ready{};
        EXPECT_EQ(::pipe(ready.data()), 0);
        m_id = ::fork();
        if (m_id == 0) {
            const int file = ::open(path.c_str(), flags | O_CLOEXEC);
            const char answer = file >= 0 && lock(file) == 0 ? 'y' : 'n';
            if (::write(ready[1], &answer, 1) == 1)
                ::pause();
            ::_exit(0);
        }
        char answer = '?';
        EXPECT_EQ(::read(ready[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~LockHolder()
    {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;

private:
    pid_t m_id = -1;
};

int lockWholeFile(int file)
{
    struct flock lock { };
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return ::fcntl(file, F_SETLK, &lock);
}

TEST_F(FileAttributesTest, KnowALockOfAnotherProcess)
{
    writeFile(file, "x");
    {
        const LockHolder holder(file, O_RDWR, [](int opened) { return ::flock(opened, LOCK_SH); });
        EXPECT_TRUE(attributesOfItem(file).isLocked);
        EXPECT_FALSE(attributesOfItem(folder.path()).isLocked);
    }
    EXPECT_FALSE(attributesOfItem(file).isLocked);
    const LockHolder holder(file, O_RDWR, lockWholeFile);
    EXPECT_TRUE(attributesOfItem(file).isLocked);
}

#ifndef __APPLE__
TEST_F(FileAttributesTest, KnowALockOnAFolder)
{
    const LockHolder holder(folder.path(), O_RDONLY | O_DIRECTORY, [](int opened) { return ::flock(opened, LOCK_EX); });
    EXPECT_TRUE(attributesOfItem(folder.path()).isLocked);
}
#endif

TEST_F(FileAttributesTest, DoNotCountALockOfThisProcess)
{
    writeFile(file, "x");
    const int opened = ::open(file.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(lockWholeFile(opened), 0);
    EXPECT_FALSE(attributesOfItem(file).isLocked);
    ::close(opened);
}

} // namespace
} // namespace Korvane
