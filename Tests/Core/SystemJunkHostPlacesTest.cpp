// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SystemJunkScanner.h"

#include "Tests/Core/ScanFixture.h"
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

/// The places that a freedesktop.org host adds to those that every host has.
class SystemJunkHostPlacesTest : public ScanFixture {
protected:
    std::vector<ScanItem> scanJunk() { return scan(SystemJunkScanner()); }

    void useEnvironment(const Environment& environment) { host().files = makeFileManager(environment); }

    /// Makes the temporary directory one that all users share.
    void shareTemporaryDirectory() const { chmod(temporary().c_str(), 01777); }

    /// Dates everything below a path, and the path, two days back.
    static void makeOld(const std::filesystem::path& path)
    {
        if (std::filesystem::is_directory(std::filesystem::symlink_status(path))) {
            for (const auto& entry : std::filesystem::directory_iterator(path))
                makeOld(entry.path());
        }
        setModified(path, std::chrono::system_clock::now() - 48h);
    }

    std::filesystem::path makeOldFile(const std::string& name) const
    {
        writeFile(temporary() / name, std::size_t{ 5000 });
        makeOld(temporary() / name);
        return temporary() / name;
    }

    std::filesystem::path makeOldFolder(const std::string& name) const
    {
        writeFile(temporary() / name / "inner/file", std::size_t{ 5000 });
        makeOld(temporary() / name);
        return temporary() / name;
    }
};

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

TEST_F(SystemJunkHostPlacesTest, EachChildOfTheCacheDirectoryIsAUserCache)
{
    writeFile(home() / ".cache/player/data", std::size_t{ 5000 });
    writeFile(home() / ".cache/single", std::size_t{ 9000 });
    writeFile(home() / ".cache/.hidden/data", std::size_t{ 5000 });
    const auto items = scanJunk();
    EXPECT_EQ(urls(items), (std::vector{ home() / ".cache/single", home() / ".cache/player" }));
    for (const auto& item : items) {
        EXPECT_EQ(item.category, "User Caches");
        EXPECT_TRUE(item.selectableByDefault);
    }
}

TEST_F(SystemJunkHostPlacesTest, CacheDirectoryOfTheEnvironmentTakesThePlaceOfTheUsualOne)
{
    auto environment = host().environment;
    environment.xdgCacheHome = folder() / "cache elsewhere";
    useEnvironment(environment);
    writeFile(home() / ".cache/player/data", std::size_t{ 5000 });
    writeFile(folder() / "cache elsewhere/editor/data", std::size_t{ 5000 });
    EXPECT_EQ(urls(scanJunk()), std::vector{ folder() / "cache elsewhere/editor" });
}

TEST_F(SystemJunkHostPlacesTest, RunningApplicationsKeepTheirCachesThereToo)
{
    setRunning({ "org.example.Player" });
    writeFile(home() / ".cache/player/data", std::size_t{ 5000 });
    writeFile(home() / ".cache/org.example.Player/data", std::size_t{ 5000 });
    writeFile(home() / ".cache/other/data", std::size_t{ 5000 });
    for (const auto& item : scanJunk())
        EXPECT_EQ(item.selectableByDefault, item.displayName == "other") << item.displayName;
}

TEST_F(SystemJunkHostPlacesTest, CachesOfTheDesktopAreFoundAndNeverPreselected)
{
    const std::vector<std::string> names{ "ibus", "ibus-table", "fcitx5", "gnome-shell", "plasmashell",
        "plasma_theme_default.kcache", "tracker3", "baloo", "wallpapers", "doc", "flatpak", "dconf", "sessions" };
    for (const auto& name : names)
        writeFile(home() / ".cache" / name / "data", std::size_t{ 5000 });
    writeFile(home() / ".cache/documents/data", std::size_t{ 5000 });
    const auto items = scanJunk();
    EXPECT_EQ(items.size(), names.size() + 1);
    for (const auto& item : items)
        EXPECT_EQ(item.selectableByDefault, item.displayName == "documents") << item.displayName;
}

TEST_F(SystemJunkHostPlacesTest, ListOfTheDesktopDoesNotTouchThePlacesThatEveryHostHas)
{
    writeFile(home() / "Library/Caches/ibus/data", std::size_t{ 5000 });
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_TRUE(items[0].selectableByDefault);
}

TEST_F(SystemJunkHostPlacesTest, CacheDirectoryThatIsALinkToTheFirstPlaceIsNotListedTwice)
{
    writeFile(home() / "Library/Caches/player/data", std::size_t{ 5000 });
    std::filesystem::create_directory_symlink("Library/Caches", home() / ".cache");
    EXPECT_EQ(urls(scanJunk()), std::vector{ home() / "Library/Caches/player" });
}

TEST_F(SystemJunkHostPlacesTest, FirstPlaceThatIsALinkToTheCacheDirectoryIsNotListedTwice)
{
    writeFile(home() / ".cache/player/data", std::size_t{ 5000 });
    std::filesystem::create_directory(home() / "Library");
    std::filesystem::create_directory_symlink("../.cache", home() / "Library/Caches");
    EXPECT_EQ(scanJunk().size(), 1U);
}

TEST_F(SystemJunkHostPlacesTest, CacheDirectoryThatHoldsTheHomeFolderIsNotListed)
{
    writeFile(home() / "Documents/thesis", std::size_t{ 5000 });
    std::filesystem::create_directory_symlink(home(), folder() / "link");
    for (const auto& place : { home(), folder().path(), std::filesystem::path("/"), folder() / "link" }) {
        auto environment = host().environment;
        environment.xdgCacheHome = place;
        useEnvironment(environment);
        EXPECT_TRUE(scanJunk().empty()) << place;
    }
}

TEST_F(SystemJunkHostPlacesTest, CacheDirectoryInsideAnotherPlaceIsNotListedTwice)
{
    auto environment = host().environment;
    environment.xdgCacheHome = temporary() / "cache";
    useEnvironment(environment);
    writeFile(temporary() / "cache/player/data", std::size_t{ 5000 });
    EXPECT_EQ(urls(scanJunk()), std::vector{ temporary() });
}

TEST_F(SystemJunkHostPlacesTest, FreedesktopTrashIsOneItemThatIsNeverPreselected)
{
    writeFile(home() / "old.log", std::size_t{ 5000 });
    host().files->trashItem(home() / "old.log");
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].url, home() / ".local/share/Trash");
    EXPECT_EQ(items[0].category, "Trash");
    EXPECT_EQ(items[0].displayName, "Trash");
    EXPECT_FALSE(items[0].selectableByDefault);
}

TEST_F(SystemJunkHostPlacesTest, PlacesOfTheHostComeAfterThoseThatEveryHostHas)
{
    writeFile(home() / ".cache/a", std::size_t{ 5000 });
    writeFile(home() / "Library/Logs/b", std::size_t{ 5000 });
    writeFile(home() / ".local/share/Trash/files/c", std::size_t{ 5000 });
    writeFile(home() / ".Trash/d", std::size_t{ 5000 });
    EXPECT_EQ(urls(scanJunk()),
        (std::vector{
            home() / "Library/Logs/b", home() / ".Trash", home() / ".cache/a", home() / ".local/share/Trash" }));
}

TEST_F(SystemJunkHostPlacesTest, SharedTemporaryDirectoryIsNeverAnItemItself)
{
    shareTemporaryDirectory();
    writeFile(temporary() / "fresh", std::size_t{ 5000 });
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkHostPlacesTest, OldChildrenOfASharedTemporaryDirectoryAreItemsThatAreNeverPreselected)
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

TEST_F(SystemJunkHostPlacesTest, HiddenChildrenOfASharedTemporaryDirectoryAreNotListed)
{
    shareTemporaryDirectory();
    makeOldFile(".X0-lock");
    makeOldFolder(".X11-unix");
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkHostPlacesTest, ChildYoungerThanADayIsNotOffered)
{
    shareTemporaryDirectory();
    const auto file = makeOldFile("file");
    setModified(file, std::chrono::system_clock::now() - 23h);
    EXPECT_TRUE(scanJunk().empty());
    setModified(file, std::chrono::system_clock::now() - 25h);
    EXPECT_EQ(scanJunk().size(), 1U);
}

TEST_F(SystemJunkHostPlacesTest, NewestContentCountsForTheAgeOfAFolder)
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

TEST_F(SystemJunkHostPlacesTest, ChildrenOfOthersAreNotOffered)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a file to somebody else";
    shareTemporaryDirectory();
    const auto foreign = makeOldFile("foreign");
    makeOldFile("own");
    ASSERT_EQ(lchown(foreign.c_str(), 65534, 65534), 0);
    EXPECT_EQ(urls(scanJunk()), std::vector{ temporary() / "own" });
}

TEST_F(SystemJunkHostPlacesTest, SocketsAndPipesAreNotOffered)
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

TEST_F(SystemJunkHostPlacesTest, LocksByNameAreNotOffered)
{
    shareTemporaryDirectory();
    makeOldFile("session.lock");
    makeOldFile("server-lock");
    const auto profile = makeOldFolder("profile");
    std::filesystem::create_symlink("host-1234", profile / "SingletonLock");
    makeOld(profile);
    makeOldFile("locksmith.txt");
    EXPECT_EQ(urls(scanJunk()), std::vector{ temporary() / "locksmith.txt" });
}

TEST_F(SystemJunkHostPlacesTest, FilesThatAnotherProcessHasLockedAreNotOffered)
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

TEST_F(SystemJunkHostPlacesTest, FolderThatCannotBeLookedIntoIsNotOffered)
{
    shareTemporaryDirectory();
    const auto tree = makeOldFolder("tree");
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(tree / "inner", std::filesystem::perms::none);
    makeOld(temporary());
    EXPECT_EQ(runAsOrdinaryUser([&] { return std::to_string(scanJunk().size()); }), "0");
}

TEST_F(SystemJunkHostPlacesTest, ChildThatHoldsTheHomeFolderOrAnotherPlaceIsNotOffered)
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

TEST_F(SystemJunkHostPlacesTest, SharedTemporaryDirectoryAsCacheDirectoryIsNotTakenForCaches)
{
    auto environment = host().environment;
    environment.xdgCacheHome = temporary();
    useEnvironment(environment);
    shareTemporaryDirectory();
    writeFile(temporary() / "fresh", std::size_t{ 5000 });
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkHostPlacesTest, LinkIntoSomebodysFilesIsOfferedAsALinkOnly)
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
