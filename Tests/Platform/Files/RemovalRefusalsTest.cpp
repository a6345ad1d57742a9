// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/PrivateRoot.h"

#include <optional>
#include <sys/stat.h>
#include <vector>

namespace Korvane {
namespace {

/// Every refusal holds for both ways of removing, and nothing has changed afterwards.
class RemovalRefusalsTest : public FileManagerFixture {
protected:
    void SetUp() override { writeFile(home("content"), "x"); }

    /// What answers to removing and to trashing places of a root in which only this test's files are; nothing when
    /// there cannot be one. Its home is "/users/home", and everything in it is still there after refusals alone.
    std::optional<std::string> answersInPrivateRoot(const std::vector<std::filesystem::path>& paths) const
    {
        writeFile(m_folder / "users/home/content", "x");
        return runInPrivateRoot(m_folder.path(), [&] {
            const auto files = makeFileManager(Environment::inFolder("/users"));
            std::string answers;
            for (const auto& path : paths) {
                answers += failureOf([&] { files->removeItem(path); }) + '\n';
                answers += failureOf([&] { files->trashItem(path); }) + '\n';
            }
            return answers + failureOf([&] { files->emptyTrash("/"); }) + '\n' + readFile("/users/home/content");
        });
    }

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
    const auto answers = answersInPrivateRoot({ "/", "///" });
    if (!answers)
        GTEST_SKIP() << noPrivateRoot;
    const std::string refusal = "The root of the file system is never removed.\n";
    EXPECT_EQ(*answers, refusal + refusal + refusal + refusal + "“/” is not a Trash of this user.\nx");
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
    const auto answers = answersInPrivateRoot({ "/users", "/users/home" });
    if (!answers)
        GTEST_SKIP() << noPrivateRoot;
    const std::string tail = " is the home folder, or holds it, and is never removed.\n";
    EXPECT_EQ(*answers,
        "“/users”" + tail + "“/users”" + tail + "“/users/home”" + tail + "“/users/home”" + tail
            + "“/” is not a Trash of this user.\nx");
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
    EXPECT_NE(failureOf([&] { m_files->emptyTrash(m_folder.path()); }), "");
    EXPECT_EQ(readFile(home("content")), "x");
}

} // namespace
} // namespace Korvane
