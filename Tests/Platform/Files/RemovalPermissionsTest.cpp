// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

/// Root ignores permissions, so these run as somebody else.
class RemovalPermissionsTest : public FileManagerFixture {
protected:
    std::string removingAsOrdinaryUser(const std::filesystem::path& path) const
    {
        giveToOrdinaryUser(m_environment.home);
        return runAsOrdinaryUser([&] { return removing(path); });
    }

    static unsigned modeOf(const std::filesystem::path& path)
    {
        struct stat status { };
        return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }
};

TEST_F(RemovalPermissionsTest, ReadOnlyFoldersOfOurOwnAreOpenedUp)
{
    writeFile(home("item/one/two/file"), "x");
    chmod(home("item/one/two/file").c_str(), 0400);
    chmod(home("item/one/two").c_str(), 0500);
    chmod(home("item/one").c_str(), 0555);
    chmod(home("item").c_str(), 0555);
    EXPECT_EQ(removingAsOrdinaryUser(home("item")), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalPermissionsTest, ClosedFoldersOfOurOwnAreOpenedUp)
{
    for (const unsigned mode : { 0000U, 0100U, 0200U, 0300U, 0400U, 0600U, 0700U }) {
        const auto folder = home("item") / std::to_string(mode);
        writeFile(folder / "inner/file", "x");
        chmod((folder / "inner").c_str(), mode);
        chmod(folder.c_str(), mode);
    }
    giveToOrdinaryUser(m_environment.home);
    EXPECT_EQ(runAsOrdinaryUser([&] { return removing(home("item")); }), "");
    EXPECT_FALSE(isThere(home("item")));
}

TEST_F(RemovalPermissionsTest, FoldersGetTheirPermissionsBackWhenRemovingFails)
{
    writeFile(home("item/open/foreign/file"), "x");
    writeFile(home("item/open/other"), "x");
    giveToOrdinaryUser(m_environment.home);
    if (geteuid() != 0)
        chmod(m_folder.path().c_str(), 0700);
    // Somebody else's folder, which only root can make; an ordinary user cannot open up what is not theirs.
    if (geteuid() == 0) {
        ASSERT_EQ(chown(home("item/open/foreign").c_str(), 0, 0), 0);
        chmod(home("item/open").c_str(), 0555);
        chmod(home("item").c_str(), 0555);
        const std::string failure = runAsOrdinaryUser([&] { return removing(home("item")); });
        EXPECT_EQ(failure, "Permission denied: " + home("item/open/foreign/file").native());
        EXPECT_TRUE(isThere(home("item/open/foreign/file")));
        EXPECT_EQ(modeOf(home("item/open")), 0555U);
        EXPECT_EQ(modeOf(home("item")), 0555U);
    } else {
        chmod(home("item").c_str(), 0555);
        chmod(m_environment.home.c_str(), 0555);
        EXPECT_EQ(removing(home("item")), "Permission denied");
        EXPECT_EQ(modeOf(home("item")), 0555U);
        chmod(m_environment.home.c_str(), 0755);
    }
}

TEST_F(RemovalPermissionsTest, TheFolderAnItemLiesInIsNotOpenedUp)
{
    writeFile(home("closed/item/file"), "x");
    giveToOrdinaryUser(m_environment.home);
    chmod(home("closed").c_str(), 0555);
    EXPECT_EQ(runAsOrdinaryUser([&] { return removing(home("closed/item")); }), "Permission denied");
    EXPECT_TRUE(isThere(home("closed/item")));
    EXPECT_EQ(modeOf(home("closed")), 0555U);
    EXPECT_EQ(runAsOrdinaryUser([&] { return removing(home("closed/item/file")); }), "No such file or directory");
}

} // namespace
} // namespace Korvane
