// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/VolumeCapacity.h"

#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/statvfs.h>

namespace Korvane {
namespace {

TEST(VolumeCapacity, IsThatOfTheVolumeWhichHoldsThePath)
{
    const TemporaryFolder folder;
    struct statvfs volume { };
    ASSERT_EQ(::statvfs(folder.path().c_str(), &volume), 0);
    const auto capacity = volumeCapacity(folder.path());
    ASSERT_TRUE(capacity);
    EXPECT_EQ(capacity->total, static_cast<std::int64_t>(volume.f_blocks * volume.f_frsize));
    EXPECT_GE(capacity->availableForImportantUsage, 0);
    EXPECT_LE(capacity->availableForImportantUsage, static_cast<std::int64_t>(volume.f_bfree * volume.f_frsize));
}

TEST(VolumeCapacity, IsKnownForTheRootFolder)
{
    const auto capacity = volumeCapacity("/");
    ASSERT_TRUE(capacity);
    EXPECT_GT(capacity->total, 0);
}

TEST(VolumeCapacity, IsNothingWhereThePlatformDoesNotTell)
{
    EXPECT_FALSE(volumeCapacity("/nonexistent/anywhere"));
    EXPECT_FALSE(volumeCapacity(""));
    EXPECT_FALSE(volumeCapacity(std::string(10'000, 'x')));
#ifndef __APPLE__
    EXPECT_FALSE(volumeCapacity("/proc"));
#endif
}

} // namespace
} // namespace Korvane
