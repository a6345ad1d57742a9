// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/FullDiskAccess.h"

#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <set>

namespace Korvane {

namespace {

class FullDiskAccessTest : public ScanFixture {
protected:
    FullDiskAccessTest()
        : files(host().files)
    {
        files.beforeListing = [this](const std::filesystem::path& listed) {
            m_listed.push_back(listed);
            if (closed.count(listed) != 0)
                throw FileError(listed, std::make_error_code(std::errc::operation_not_permitted));
        };
    }

    std::filesystem::path safari() const { return home() / "Library/Safari"; }
    std::filesystem::path permissions() const { return home() / "Library/Application Support/com.apple.TCC"; }
    const std::vector<std::filesystem::path>& listed() const { return m_listed; }

    ForwardingFileManager files;
    std::set<std::filesystem::path> closed;

private:
    std::vector<std::filesystem::path> m_listed;
};

} // namespace

TEST_F(FullDiskAccessTest, HomeWithoutProtectedFoldersCountsAsGranted)
{
    EXPECT_TRUE(FullDiskAccess::isGranted(files));
    EXPECT_TRUE(listed().empty());
}

TEST_F(FullDiskAccessTest, FirstFolderThatCanBeListedIsEnough)
{
    std::filesystem::create_directories(safari());
    std::filesystem::create_directories(permissions());
    EXPECT_TRUE(FullDiskAccess::isGranted(files));
    EXPECT_EQ(listed(), std::vector{ safari() });
}

TEST_F(FullDiskAccessTest, GrantedWhenOnlyTheSecondFolderCanBeListed)
{
    std::filesystem::create_directories(safari());
    std::filesystem::create_directories(permissions());
    closed = { safari() };
    EXPECT_TRUE(FullDiskAccess::isGranted(files));
    EXPECT_EQ(listed(), (std::vector{ safari(), permissions() }));
}

TEST_F(FullDiskAccessTest, NotGrantedWhenNeitherFolderCanBeListed)
{
    std::filesystem::create_directories(safari());
    std::filesystem::create_directories(permissions());
    closed = { safari(), permissions() };
    EXPECT_FALSE(FullDiskAccess::isGranted(files));
}

TEST_F(FullDiskAccessTest, NotGrantedWhenTheOnlyFolderCannotBeListed)
{
    std::filesystem::create_directories(permissions());
    closed = { permissions() };
    EXPECT_FALSE(FullDiskAccess::isGranted(files));
}

TEST_F(FullDiskAccessTest, PermissionsOfTheFileSystemDecideForAnOrdinaryUser)
{
    std::filesystem::create_directories(safari());
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(safari(), std::filesystem::perms::none);
    const auto answer
        = runAsOrdinaryUser([&] { return FullDiskAccess::isGranted(*host().files) ? "granted" : "not granted"; });
    EXPECT_EQ(answer, "not granted");
}

TEST_F(FullDiskAccessTest, SettingsOpenAtThePaneOfThePermission)
{
    const TestWorkspace workspace;
    FullDiskAccess::openSettings(workspace);
    EXPECT_EQ(workspace.openedUrls(),
        std::vector<std::string>{ "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles" });
}

TEST_F(FullDiskAccessTest, DesktopWithoutSuchAPaneIsNoError)
{
    TestWorkspace workspace;
    workspace.setRefusing(true);
    EXPECT_NO_THROW(FullDiskAccess::openSettings(workspace));
}

} // namespace Korvane
