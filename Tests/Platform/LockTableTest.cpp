// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/LockTable.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Korvane {
namespace {

constexpr LockedFile file{ 0xFE, 0x1A, 123456 };
constexpr std::int64_t ownProcess = 42;

LockMatch match(const std::string& table)
{
    std::istringstream stream(table);
    return findLock(stream, file, ownProcess);
}

TEST(LockTable, FindsEachKindOfLock)
{
    EXPECT_EQ(match("1: POSIX  ADVISORY  WRITE 1001 fe:1a:123456 0 EOF\n"), LockMatch::SameFile);
    EXPECT_EQ(match("2: FLOCK  ADVISORY  WRITE 1001 fe:1a:123456 0 EOF\n"), LockMatch::SameFile);
    EXPECT_EQ(match("3: OFDLCK ADVISORY  READ  -1 fe:1a:123456 0 100\n"), LockMatch::SameFile);
    EXPECT_EQ(match("1: POSIX  ADVISORY  READ 1 08:02:7 0 EOF\n2: FLOCK  ADVISORY  WRITE 9 fe:1a:123456 0 EOF\n"),
        LockMatch::SameFile);
}

TEST(LockTable, TellsTheSameNumberOnAnotherDeviceApart)
{
    EXPECT_EQ(match("1: POSIX  ADVISORY  WRITE 1001 00:2c:123456 0 EOF\n"), LockMatch::SameNumberOnAnotherDevice);
    EXPECT_EQ(match("1: POSIX ADVISORY WRITE 1 00:2c:123456 0 EOF\n2: POSIX ADVISORY WRITE 1 fe:1a:123456 0 EOF\n"),
        LockMatch::SameFile);
}

TEST(LockTable, PassesOverOwnLocksWaitersLeasesAndOtherLines)
{
    EXPECT_EQ(match(""), LockMatch::None);
    EXPECT_EQ(match("1: POSIX  ADVISORY  WRITE 42 fe:1a:123456 0 EOF\n"), LockMatch::None);
    EXPECT_EQ(match("1: -> POSIX  ADVISORY  WRITE 1001 fe:1a:123456 0 EOF\n"), LockMatch::None);
    EXPECT_EQ(match("1: LEASE  ACTIVE    READ  1001 fe:1a:123456 0 EOF\n"), LockMatch::None);
    EXPECT_EQ(match("1: POSIX  ADVISORY  WRITE 1001 fe:1a:1234567 0 EOF\n"), LockMatch::None);
    EXPECT_EQ(match("garbage\n1:\n1: POSIX ADVISORY WRITE x fe:1a:123456\n1: POSIX ADVISORY WRITE 1 fe-1a-123456\n"),
        LockMatch::None);
}

} // namespace
} // namespace Korvane
