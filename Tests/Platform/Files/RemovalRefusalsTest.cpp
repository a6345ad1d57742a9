// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"

#include <sys/stat.h>

namespace Korvane {
namespace {

/// Every refusal holds for both ways of removing, and nothing has changed afterwards.
class RemovalRefusalsTest : public FileManagerFixture {
protected:
    void SetUp() override { writeFile(home("content"), "x"); }

    void expectRefused(const std::filesystem::path& path, const std::string& reason) const
    {
        EXPECT_NE(removing(path).find(reason), std::string::npos) << path << ": " << removing(path);
        EXPECT_NE(trashing(path).find(reason), std::string::npos) << path << ": " << trashing(path);
        EXPECT_EQ(readFile(home("content")), "x");
    }
};

TEST_F(RemovalRefusalsTest, NoPath) { expectRefused("", "Nothing was named"); }

TEST_F(RemovalRefusalsTest, ARelativePath)
{
    expectRefused("content", "is not a full path");
    expectRefused("./content", "is not a full path");
}

TEST_F(RemovalRefusalsTest, APathWithANul)
{
    writeFile(home("cut"), "x");
    expectRefused(home("cut").native() + std::string("\0off", 4), "cannot be the name of a file");
    EXPECT_TRUE(isThere(home("cut")));
}

TEST_F(RemovalRefusalsTest, TheRoot)
{
    expectRefused("/", "root of the file system");
    expectRefused("///", "root of the file system");
}

TEST_F(RemovalRefusalsTest, PathsThatEndInDots)
{
    std::filesystem::create_directory(home("folder"));
    expectRefused(home("folder/."), "does not name an item");
    expectRefused(home("folder/.."), "does not name an item");
    expectRefused(home("folder").native() + "/../", "does not name an item");
}

TEST_F(RemovalRefusalsTest, TheHomeFolder)
{
    expectRefused(m_environment.home, "is the home folder, or holds it");
    expectRefused(m_environment.home.native() + "/", "is the home folder, or holds it");
}

TEST_F(RemovalRefusalsTest, WhatHoldsTheHomeFolder)
{
    expectRefused(m_folder.path(), "is the home folder, or holds it");
    expectRefused(m_folder.path().parent_path(), "is the home folder, or holds it");
}

TEST_F(RemovalRefusalsTest, TheHomeFolderByAnotherWay)
{
    std::filesystem::create_directory(home("folder"));
    std::filesystem::create_directory_symlink(m_folder.path(), m_folder / "outside/way");
    expectRefused(home("folder/../../home"), "is the home folder, or holds it");
    expectRefused(m_folder / "outside/way/home", "is the home folder, or holds it");
    std::filesystem::remove(m_folder / "outside/way");
}

TEST_F(RemovalRefusalsTest, AHomeFolderThatIsALink)
{
    std::filesystem::create_directory_symlink(m_environment.home, m_folder / "alias");
    Environment environment = m_environment;
    environment.home = m_folder / "alias";
    const auto files = makeFileManager(environment);
    const auto removed = [&](const std::filesystem::path& path) { return failureOf([&] { files->removeItem(path); }); };
    EXPECT_NE(removed(m_folder / "alias"), "");
    EXPECT_NE(removed(m_environment.home), "");
    EXPECT_NE(removed(m_folder.path()), "");
    EXPECT_TRUE(isThere(m_folder / "alias"));
    EXPECT_EQ(readFile(home("content")), "x");
}

TEST_F(RemovalRefusalsTest, AHomeFolderThatIsMissing)
{
    Environment environment = m_environment;
    environment.home = m_folder / "outside/none";
    const auto files = makeFileManager(environment);
    EXPECT_NE(failureOf([&] { files->removeItem(m_folder / "outside"); }), "");
    writeFile(home("item"), "x");
    EXPECT_EQ(failureOf([&] { files->removeItem(home("item")); }), "");
}

TEST_F(RemovalRefusalsTest, AFolderSharedByAllUsers)
{
    std::filesystem::create_directory(home("shared"));
    writeFile(home("shared/file"), "x");
    ASSERT_EQ(chmod(home("shared").c_str(), 01777), 0);
    expectRefused(home("shared"), "is a folder shared by all users");
    EXPECT_TRUE(isThere(home("shared/file")));
}

TEST_F(RemovalRefusalsTest, AFolderThatIsNoTrashIsNotEmptied)
{
    EXPECT_NE(failureOf([&] { m_files->emptyTrash(m_environment.home); }), "");
    EXPECT_NE(failureOf([&] { m_files->emptyTrash("/"); }), "");
    EXPECT_EQ(readFile(home("content")), "x");
}

} // namespace
} // namespace Korvane
