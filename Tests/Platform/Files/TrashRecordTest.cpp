// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/TrashRecord.h"
#include "Platform/Files/OpenFolder.h"
#include "Tests/Platform/Files/FileManagerFixture.h"

#include <fcntl.h>

namespace Korvane {
namespace {

class TrashRecordTest : public FileManagerFixture {
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(home("info"));
        ASSERT_EQ(openFolder(AT_FDCWD, home("info").c_str(), Links::NotFollowed, m_info), 0);
    }

    std::filesystem::path m_path = home("info/name.trashinfo");
    FileDescriptor m_info;
};

TEST_F(TrashRecordTest, WhatIsNotUsedIsTakenBack)
{
    TrashRecord record(m_info.get(), "name");
    ASSERT_EQ(record.write("ours"), 0);
    EXPECT_EQ(readFile(m_path), "ours");
    record.takeBack();
    EXPECT_FALSE(isThere(m_path));
}

TEST_F(TrashRecordTest, SomebodyElsesOfTheSameNameIsNotTakenBack)
{
    TrashRecord record(m_info.get(), "name");
    ASSERT_EQ(record.write("ours"), 0);
    std::filesystem::remove(m_path);
    EXPECT_TRUE(record.isGone());
    writeFile(m_path, "theirs");
    record.takeBack();
    EXPECT_EQ(readFile(m_path), "theirs");
}

} // namespace
} // namespace Korvane
