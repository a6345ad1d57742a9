// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"
#include "Tests/Support/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace Korvane {

TEST(PropertyListFile, IsReadThroughALink)
{
    const TemporaryFolder folder;
    writeFile(folder / "list.plist", "<plist><integer>7</integer></plist>");
    std::filesystem::create_symlink("list.plist", folder / "link.plist");
    EXPECT_EQ(PropertyList::read(folder / "list.plist")->root().integer(), 7);
    EXPECT_EQ(PropertyList::read(folder / "link.plist")->root().integer(), 7);
}

TEST(PropertyListFile, NothingElseIsReadOrWaitedFor)
{
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    writeFile(folder / "empty.plist", "");
    EXPECT_FALSE(PropertyList::read(folder / "pipe"));
    EXPECT_FALSE(PropertyList::read(folder / "empty.plist"));
    EXPECT_FALSE(PropertyList::read(folder / "absent.plist"));
    EXPECT_FALSE(PropertyList::read(folder.path()));
    EXPECT_FALSE(PropertyList::read("/dev/zero"));
}

TEST(PropertyListFile, SizeIsBounded)
{
    const TemporaryFolder folder;
    const std::string open = "<plist><string>";
    const std::string close = "</string></plist>";
    const std::string text(PropertyList::largestSize - open.size() - close.size(), 'x');
    writeFile(folder / "largest.plist", open + text + close);
    writeFile(folder / "larger.plist", open + text + 'x' + close);
    const auto largest = PropertyList::read(folder / "largest.plist");
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->root().string()->size(), text.size());
    EXPECT_FALSE(PropertyList::read(folder / "larger.plist"));
    EXPECT_FALSE(PropertyList::parse(open + text + 'x' + close));
}

} // namespace Korvane
