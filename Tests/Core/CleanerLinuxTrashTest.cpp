// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/CleanerFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

/// Cleaning of the freedesktop.org Trash, and of what lies in it.
class CleanerLinuxTrashTest : public CleanerFixture {
protected:
    std::filesystem::path freedesktopTrash() { return host().files->additionalTrashDirectories().at(0); }
};

std::size_t countEntries(const std::filesystem::path& folder)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        count += entry.exists() ? 1 : 0;
    return count;
}

} // namespace

TEST_F(CleanerLinuxTrashTest, FreedesktopTrashIsEmptiedAndStays)
{
    const auto file = makeFile("old.log");
    clean({ item(file, 1) }, Removal::MoveToTrash);
    ASSERT_EQ(countEntries(freedesktopTrash() / "files"), 1U);
    const auto result = clean({ item(freedesktopTrash(), 4096) }, Removal::MoveToTrash);
    EXPECT_EQ(result, (Cleaner::Result{ 4096, 1, {} }));
    EXPECT_TRUE(std::filesystem::is_directory(freedesktopTrash()));
    EXPECT_FALSE(std::filesystem::exists(freedesktopTrash() / "files/old.log"));
    EXPECT_FALSE(std::filesystem::exists(freedesktopTrash() / "info/old.log.trashinfo"));
    EXPECT_EQ(files.emptied(), std::vector{ freedesktopTrash() });
}

TEST_F(CleanerLinuxTrashTest, ItemInsideTheFreedesktopTrashIsDeleted)
{
    clean({ item(makeFile("old.log"), 1) }, Removal::MoveToTrash);
    const auto inTrash = freedesktopTrash() / "files/old.log";
    EXPECT_EQ(clean({ item(inTrash, 2) }, Removal::MoveToTrash), (Cleaner::Result{ 2, 1, {} }));
    EXPECT_FALSE(std::filesystem::exists(inTrash));
}

} // namespace Korvane
