// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Cleaning/Cleaner.h"
#include "Tests/Core/HostPlacesFixture.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <vector>

namespace Korvane {

namespace {

/// Environments in which what the user keeps lies among what System Junk looks at.
class SystemJunkUserPlacesTest : public HostPlacesFixture {
protected:
    SystemJunkUserPlacesTest() { writeFile(home() / ".cache/player/data", std::size_t{ 5000 }); }

    Environment environment() { return host().environment; }

    void useDataHome(const std::filesystem::path& place)
    {
        auto changed = environment();
        changed.xdgDataHome = place;
        useEnvironment(changed);
    }
    void useConfigHome(const std::filesystem::path& place)
    {
        auto changed = environment();
        changed.xdgConfigHome = place;
        useEnvironment(changed);
    }
    void useCacheHome(const std::filesystem::path& place)
    {
        auto changed = environment();
        changed.xdgCacheHome = place;
        useEnvironment(changed);
    }

    /// Deletes everything that is offered, ticked or not, as somebody does who trusts the list.
    void deleteWhatIsOffered() { Cleaner::clean(scanJunk(), false, *host().files); }
};

} // namespace

TEST_F(SystemJunkUserPlacesTest, CacheDirectoryThatHoldsTheDataOfApplicationsIsNotListed)
{
    for (const char* place : { ".cache/data", ".cache/deep/er/data" }) {
        useDataHome(home() / place);
        const Sentinel letters(home() / place / "mail/letters");
        EXPECT_TRUE(scanJunk().empty()) << place;
        deleteWhatIsOffered();
        EXPECT_EQ(letters.difference(), "");
    }
}

TEST_F(SystemJunkUserPlacesTest, CacheDirectoryThatHoldsTheSettingsOfApplicationsIsNotListed)
{
    for (const char* place : { ".cache/settings", ".cache/deep/er/settings" }) {
        useConfigHome(home() / place);
        const Sentinel settings(home() / place / "mail/accounts");
        EXPECT_TRUE(scanJunk().empty()) << place;
        deleteWhatIsOffered();
        EXPECT_EQ(settings.difference(), "");
    }
}

TEST_F(SystemJunkUserPlacesTest, TrashInsideTheCacheDirectoryIsStillTheTrashAndNoCache)
{
    useDataHome(home() / ".cache/data");
    const Sentinel letters(home() / ".cache/data/mail/letters");
    writeFile(home() / "old.log", std::size_t{ 5000 });
    host().files->trashItem(home() / "old.log");
    const auto items = scanJunk();
    ASSERT_EQ(urls(items), std::vector{ home() / ".cache/data/Trash" });
    EXPECT_EQ(items[0].category, "Trash");
    EXPECT_FALSE(items[0].selectableByDefault);
    deleteWhatIsOffered();
    EXPECT_TRUE(scanJunk().empty());
    EXPECT_EQ(letters.difference(), "");
}

TEST_F(SystemJunkUserPlacesTest, FolderOfDataOrSettingsIsNoCacheDirectoryThoughTheEnvironmentSaysSo)
{
    const Sentinel letters(home() / ".local/share/mail/letters");
    const Sentinel settings(home() / ".config/mail/accounts");
    for (const char* place : { ".local/share", ".local", ".config" }) {
        useCacheHome(home() / place);
        EXPECT_TRUE(scanJunk().empty()) << place;
        deleteWhatIsOffered();
        EXPECT_EQ(letters.difference() + settings.difference(), "");
    }
}

TEST_F(SystemJunkUserPlacesTest, UsualFoldersOfDataAndSettingsAreKeptThoughTheEnvironmentNamesOthers)
{
    const Sentinel letters(home() / ".local/share/mail/letters");
    useDataHome(folder() / "data");
    useConfigHome(folder() / "settings");
    useCacheHome(home() / ".local");
    EXPECT_TRUE(scanJunk().empty());
    EXPECT_EQ(letters.difference(), "");
}

TEST_F(SystemJunkUserPlacesTest, DataThatALinkLeadsIntoTheCacheDirectoryIsKept)
{
    const Sentinel letters(home() / ".cache/share/mail/letters");
    std::filesystem::create_directory(home() / ".local");
    std::filesystem::create_directory_symlink("../.cache/share", home() / ".local/share");
    EXPECT_TRUE(scanJunk().empty());
    deleteWhatIsOffered();
    EXPECT_EQ(letters.difference(), "");
}

TEST_F(SystemJunkUserPlacesTest, CacheDirectoryAmongTheDataIsListed)
{
    useCacheHome(home() / ".local/share/caches");
    const Sentinel letters(home() / ".local/share/mail/letters");
    writeFile(home() / ".local/share/caches/player/data", std::size_t{ 5000 });
    EXPECT_EQ(urls(scanJunk()), std::vector{ home() / ".local/share/caches/player" });
    deleteWhatIsOffered();
    EXPECT_EQ(letters.difference(), "");
}

TEST_F(SystemJunkUserPlacesTest, DataAndSettingsInATemporaryDirectoryOfAllUsersAreNotOffered)
{
    useDataHome(temporary() / "data");
    useConfigHome(temporary() / "deep/settings");
    writeFile(temporary() / "data/mail/letters", std::size_t{ 5000 });
    writeFile(temporary() / "deep/settings/accounts", std::size_t{ 5000 });
    shareTemporaryDirectory();
    const auto left = makeOldFile("left");
    makeOld(temporary());
    EXPECT_EQ(urls(scanJunk()), (std::vector{ left, home() / ".cache/player" }));
    deleteWhatIsOffered();
    EXPECT_TRUE(std::filesystem::exists(temporary() / "data/mail/letters"));
    EXPECT_TRUE(std::filesystem::exists(temporary() / "deep/settings/accounts"));
}

} // namespace Korvane
