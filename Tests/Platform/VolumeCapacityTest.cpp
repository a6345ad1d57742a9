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
    // Others write to the volume meanwhile, and macOS counts what it could give up: what is free for the user is the
    // least, but for a share that others may take between the two questions.
    const auto available = static_cast<std::int64_t>(volume.f_bavail * volume.f_frsize);
    EXPECT_GE(capacity->availableForImportantUsage, available - capacity->total / 20);
    EXPECT_LE(capacity->availableForImportantUsage, capacity->total);
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
