// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/Removal.h"
#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/PrivateMounts.h"

namespace Korvane {
namespace {

class RemovalMountsTest : public FileManagerFixture {
protected:
    void SetUp() override
    {
        writeFile(home("item/inner/file"), "x");
        std::filesystem::create_directories(home("item/inner/mount"));
        m_canMount = canMountPrivately();
    }

    /// What a machine without private mounts can show: an entry that is on another mount than its folder.
    void expectBorderRespected() const
    {
        ItemPlace item = findItem(home("item"));
        item.parentStatus.mount = item.status.mount + 1;
        const auto failure = removeForGood(item);
        ASSERT_TRUE(failure.has_value());
        EXPECT_EQ(failure->localizedDescription(), "A volume is mounted inside");
        EXPECT_TRUE(isThere(home("item/inner/file")));
    }

    bool m_canMount = false;
};

TEST_F(RemovalMountsTest, ABorderBetweenMountsIsNotCrossed) { expectBorderRespected(); }

TEST_F(RemovalMountsTest, ABoundFolderInsideAnItemIsLeftAlone)
{
    if (!m_canMount)
        return expectBorderRespected();
    const auto mount = home("item/inner/mount");
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountBound(m_sentinel.path().parent_path(), mount);
        return removing(home("item"));
    }),
        "A volume is mounted inside: " + mount.native());
    EXPECT_TRUE(isThere(mount));
}

TEST_F(RemovalMountsTest, AVolumeInsideAnItemIsLeftAlone)
{
    if (!m_canMount)
        return expectBorderRespected();
    const auto mount = home("item/inner/mount");
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountMemory(mount);
        writeFile(mount / "kept", "x");
        const std::string failure = removing(home("item"));
        return failure + (isThere(mount / "kept") ? ", kept" : ", lost");
    }),
        "A volume is mounted inside: " + mount.native() + ", kept");
}

TEST_F(RemovalMountsTest, ABoundFileInsideAnItemIsLeftAlone)
{
    if (!m_canMount)
        return expectBorderRespected();
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountBound(m_sentinel.path(), home("item/inner/file"));
        return removing(home("item"));
    }),
        "A volume is mounted inside: " + home("item/inner/file").native());
    EXPECT_TRUE(isThere(home("item/inner/file")));
}

TEST_F(RemovalMountsTest, AMountPointItselfIsRefused)
{
    if (!m_canMount)
        return expectBorderRespected();
    const auto mount = home("item/inner/mount");
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountBound(m_sentinel.path().parent_path(), mount);
        return removing(mount) + trashing(mount);
    }),
        "“" + mount.native() + "” is where a volume is mounted, and is never removed.“" + mount.native()
            + "” is where a volume is mounted, and is never removed.");
}

TEST_F(RemovalMountsTest, AHomeFolderBoundElsewhereIsRefused)
{
    if (!m_canMount)
        return expectBorderRespected();
    EXPECT_NE(runWithPrivateMounts([&] {
        mountBound(m_folder.path(), home("item/inner/mount"));
        return removing(home("item/inner/mount/home"));
    }),
        "");
    EXPECT_TRUE(isThere(home("item/inner/file")));
}

TEST_F(RemovalMountsTest, AReadOnlyVolumeIsReported)
{
    if (!m_canMount)
        return expectBorderRespected();
    EXPECT_EQ(runWithPrivateMounts([&] {
        mountBound(home("item"), home("item"));
        makeMountReadOnly(home("item"));
        return removing(home("item/inner")) + ", " + trashing(home("item/inner")).substr(0, 21);
    }),
        "Read-only file system: " + home("item/inner/file").native() + ", Read-only file system");
    EXPECT_TRUE(isThere(home("item/inner/file")));
}

} // namespace
} // namespace Korvane
