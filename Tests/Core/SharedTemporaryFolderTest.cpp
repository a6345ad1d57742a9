// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Cleaning/Cleaner.h"
#include "Tests/Core/HostPlacesFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

class SharedTemporaryFolderTest : public HostPlacesFixture { };

void makeSocket(const std::filesystem::path& path)
{
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(path.native().size(), sizeof address.sun_path);
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(descriptor);
}

/// Another process that holds a lock on a file until it is let go.
class LockHolder {
public:
    explicit LockHolder(const std::filesystem::path& path)
    {
        int ready[2];
        int done[2];
        if (pipe(ready) != 0 || pipe(done) != 0)
            std::abort();
        m_child = fork();
        if (m_child == 0) {
            const int descriptor = open(path.c_str(), O_RDWR);
            const char answer = flock(descriptor, LOCK_EX | LOCK_NB) == 0 ? 'y' : 'n';
            (void)!write(ready[1], &answer, 1);
            close(done[1]);
            char ignored = 0;
            (void)!read(done[0], &ignored, 1);
            _exit(0);
        }
        char answer = 'n';
        (void)!read(ready[0], &answer, 1);
        m_isHeld = answer == 'y';
        m_done = done[1];
        close(ready[0]);
        close(ready[1]);
        close(done[0]);
    }
    ~LockHolder()
    {
        close(m_done);
        waitpid(m_child, nullptr, 0);
    }
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;

    bool isHeld() const { return m_isHeld; }

private:
    pid_t m_child = -1;
    int m_done = -1;
    bool m_isHeld = false;
};

} // namespace

TEST_F(SharedTemporaryFolderTest, SharedTemporaryDirectoryIsNeverAnItemItself)
{
    shareTemporaryDirectory();
    writeFile(temporary() / "fresh", std::size_t{ 5000 });
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SharedTemporaryFolderTest, OldChildrenOfASharedTemporaryDirectoryAreItemsThatAreNeverPreselected)
{
    shareTemporaryDirectory();
    const auto file = makeOldFile("old");
    const auto tree = makeOldFolder("old tree");
    const auto items = scanJunk();
    EXPECT_EQ(items.size(), 2U);
    for (const auto& url : { file, tree }) {
        const auto* item = itemAt(items, url);
        ASSERT_NE(item, nullptr) << url;
        EXPECT_EQ(item->category, "Temporary Files");
        EXPECT_FALSE(item->selectableByDefault);
        EXPECT_EQ(item->displayName, url.filename());
    }
}

TEST_F(SharedTemporaryFolderTest, LinkToASharedTemporaryDirectoryIsTakenForOne)
{
    shareTemporaryDirectory();
    makeOldFile("old");
    writeFile(temporary() / "fresh", std::size_t{ 5000 });
    std::filesystem::create_directory_symlink(temporary(), folder() / "link");
    auto environment = host().environment;
    environment.temporaryDirectory = folder() / "link";
    useEnvironment(environment);
    EXPECT_EQ(urls(scanJunk()), std::vector{ folder() / "link/old" });
    EXPECT_EQ(Cleaner::clean(scanJunk(), false, *host().files).cleanedCount, 1);
    EXPECT_FALSE(std::filesystem::exists(temporary() / "old"));
    EXPECT_TRUE(std::filesystem::exists(temporary() / "fresh"));
}

TEST_F(SharedTemporaryFolderTest, HiddenChildrenOfASharedTemporaryDirectoryAreNotListed)
{
    shareTemporaryDirectory();
    makeOldFile(".X0-lock");
    makeOldFolder(".X11-unix");
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SharedTemporaryFolderTest, ChildYoungerThanADayIsNotOffered)
{
    shareTemporaryDirectory();
    const auto file = makeOldFile("file");
    setModified(file, std::chrono::system_clock::now() - 23h);
    EXPECT_TRUE(scanJunk().empty());
    setModified(file, std::chrono::system_clock::now() - 25h);
    EXPECT_EQ(scanJunk().size(), 1U);
}

TEST_F(SharedTemporaryFolderTest, NewestContentCountsForTheAgeOfAFolder)
{
    shareTemporaryDirectory();
    const auto tree = makeOldFolder("tree");
    setModified(tree / "inner/file", std::chrono::system_clock::now() - 1h);
    EXPECT_TRUE(scanJunk().empty());
    setModified(tree / "inner/file", std::chrono::system_clock::now() - 25h);
    EXPECT_EQ(scanJunk().size(), 1U);
    setModified(tree / "inner", std::chrono::system_clock::now() - 1h);
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SharedTemporaryFolderTest, ChildrenOfOthersAreNotOffered)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a file to somebody else";
    shareTemporaryDirectory();
    const auto foreign = makeOldFile("foreign");
    makeOldFile("own");
    ASSERT_EQ(lchown(foreign.c_str(), 65534, 65534), 0);
    EXPECT_EQ(urls(scanJunk()), std::vector{ temporary() / "own" });
}

TEST_F(SharedTemporaryFolderTest, SocketsAndPipesAreNotOffered)
{
    shareTemporaryDirectory();
    makeSocket(temporary() / "socket");
    ASSERT_EQ(mkfifo((temporary() / "pipe").c_str(), 0600), 0);
    const auto withSocket = makeOldFolder("with socket");
    makeSocket(withSocket / "inner/s");
    const auto withPipe = makeOldFolder("with pipe");
    ASSERT_EQ(mkfifo((withPipe / "inner/p").c_str(), 0600), 0);
    makeOld(temporary());
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SharedTemporaryFolderTest, LocksByNameAreNotOffered)
{
    shareTemporaryDirectory();
    makeOldFile("session.lock");
    makeOldFile("server-lock");
    const auto profile = makeOldFolder("profile");
    std::filesystem::create_symlink("host-1234", profile / "SingletonLock");
    makeOld(profile);
    const auto service = makeOldFolder("service");
    writeFile(service / "inner/lock", std::string_view("1234\n"));
    makeOld(service);
    const auto other = makeOldFile("locksmith.txt");
    EXPECT_EQ(urls(scanJunk()), std::vector{ other });
}

TEST_F(SharedTemporaryFolderTest, ListsThatPackageManagersCallLocksAreNoLocks)
{
    shareTemporaryDirectory();
    const auto project = makeOldFolder("project");
    writeFile(project / "Cargo.lock", std::size_t{ 5000 });
    writeFile(project / "clock", std::string_view("tick"));
    makeOld(project);
    EXPECT_EQ(urls(scanJunk()), std::vector{ project });
}

TEST_F(SharedTemporaryFolderTest, FilesThatAnotherProcessHasLockedAreNotOffered)
{
    shareTemporaryDirectory();
    const auto file = makeOldFile("database");
    const auto tree = makeOldFolder("tree");
    {
        const LockHolder onFile(file);
        const LockHolder insideTree(tree / "inner/file");
        ASSERT_TRUE(onFile.isHeld() && insideTree.isHeld());
        EXPECT_TRUE(scanJunk().empty());
    }
    EXPECT_EQ(scanJunk().size(), 2U);
}

TEST_F(SharedTemporaryFolderTest, FolderThatCannotBeLookedIntoIsNotOffered)
{
    shareTemporaryDirectory();
    const auto tree = makeOldFolder("tree");
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(tree / "inner", std::filesystem::perms::none);
    EXPECT_EQ(runAsOrdinaryUser([&] { return std::to_string(scanJunk().size()); }), "0");
}

TEST_F(SharedTemporaryFolderTest, ChildThatHoldsTheHomeFolderOrAnotherPlaceIsNotOffered)
{
    auto environment = Environment::inFolder(temporary() / "somebody");
    environment.temporaryDirectory = temporary();
    environment.xdgCacheHome = temporary() / "cache";
    useEnvironment(environment);
    writeFile(temporary() / "somebody/home/Documents/thesis", std::size_t{ 5000 });
    writeFile(temporary() / "cache/player/data", std::size_t{ 5000 });
    shareTemporaryDirectory();
    makeOld(temporary());
    EXPECT_EQ(urls(scanJunk()), std::vector{ temporary() / "cache/player" });
}

TEST_F(SharedTemporaryFolderTest, SharedTemporaryDirectoryAsCacheDirectoryIsNotTakenForCaches)
{
    auto environment = host().environment;
    environment.xdgCacheHome = temporary();
    useEnvironment(environment);
    shareTemporaryDirectory();
    writeFile(temporary() / "fresh", std::size_t{ 5000 });
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SharedTemporaryFolderTest, LinkIntoSomebodysFilesIsOfferedAsALinkOnly)
{
    shareTemporaryDirectory();
    const Sentinel sentinel(home() / "Documents/keep");
    std::filesystem::create_directory_symlink(home() / "Documents", temporary() / "link");
    makeOld(temporary() / "link");
    for (const auto& item : scanJunk())
        EXPECT_EQ(item.sizeInBytes, allocatedBytes(temporary() / "link"));
    EXPECT_EQ(sentinel.difference(), "");
}

} // namespace Korvane
