// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <sys/stat.h>

namespace Korvane {
namespace {

/// The ".Trash" of the home folder, which every host has.
class EmptyTrashTest : public FileManagerFixture {
protected:
    std::string emptying() const
    {
        return failureOf([&] { m_files->emptyTrash(m_plain); });
    }

    std::filesystem::path m_plain = home(".Trash");
};

TEST_F(EmptyTrashTest, ThePlainTrashLosesAllItHoldsAndStays)
{
    writeFile(m_plain / "folder/file", "x");
    writeFile(m_plain / ".hidden", "x");
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), m_plain / "link");
    EXPECT_EQ(emptying(), "");
    EXPECT_TRUE(std::filesystem::is_empty(m_plain));
}

TEST_F(EmptyTrashTest, AMissingOrUnreadableTrashCountsAsEmpty)
{
    EXPECT_EQ(emptying(), "");
    writeFile(m_plain / "file", "x");
    giveToOrdinaryUser(m_environment.home);
    chmod(m_plain.c_str(), 0000);
    EXPECT_EQ(runAsOrdinaryUser([&] { return emptying(); }), "");
    chmod(m_plain.c_str(), 0700);
    EXPECT_EQ(readFile(m_plain / "file"), "x");
}

TEST_F(EmptyTrashTest, TheFirstChildThatCannotBeDeletedEndsIt)
{
    for (int i = 0; i < 6; ++i)
        writeFile(m_plain / std::to_string(i), "x");
    const auto order = m_files->contentsOfDirectory(m_plain);
    std::filesystem::remove(order[3]);
    std::filesystem::create_directory(order[3]);
    chmod(order[3].c_str(), 01777);
    const auto listed = m_files->contentsOfDirectory(m_plain);
    EXPECT_NE(emptying().find("“" + order[3].native() + "” is a folder shared by all users"), std::string::npos);
    bool isReached = false;
    for (const auto& child : listed) {
        isReached = isReached || child == order[3];
        EXPECT_EQ(isThere(child), isReached) << child;
    }
}

TEST_F(EmptyTrashTest, ATrashThatIsALinkIsNotEmptied)
{
    std::filesystem::create_directory_symlink(m_sentinel.path().parent_path(), m_plain);
    EXPECT_NE(emptying().find("is a link"), std::string::npos);
    EXPECT_TRUE(isThere(m_plain));
}

} // namespace
} // namespace Korvane
