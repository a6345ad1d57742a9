// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/HostPlacesFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

class SystemJunkHostPlacesTest : public HostPlacesFixture { };

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

TEST_F(SystemJunkHostPlacesTest, TemporaryDirectoryInsideTheCacheDirectoryIsLeftOutThere)
{
    auto environment = host().environment;
    environment.temporaryDirectory = home() / ".cache/scratch/tmp";
    useEnvironment(environment);
    writeFile(home() / ".cache/scratch/tmp/file", std::size_t{ 50'000 });
    writeFile(home() / ".cache/player/data", std::size_t{ 5000 });
    const auto items = scanJunk();
    ASSERT_EQ(urls(items), (std::vector{ home() / ".cache/scratch/tmp", home() / ".cache/player" }));
    EXPECT_EQ(items[0].category, "Temporary Files");
    EXPECT_EQ(items[1].category, "User Caches");
}

TEST_F(SystemJunkHostPlacesTest, TrashThatIsALinkToTheFreedesktopTrashDoesNotHideIt)
{
    writeFile(home() / ".local/share/Trash/files/old.log", std::size_t{ 5000 });
    std::filesystem::create_directory_symlink(".local/share/Trash", home() / ".Trash");
    EXPECT_NE(itemAt(scanJunk(), home() / ".local/share/Trash"), nullptr);
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

} // namespace Korvane
