// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Uuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <mutex>
#include <thread>
#include <unordered_set>
#include <vector>

namespace Korvane {
namespace {

TEST(Uuid, IsOfVersionFourAndVariantOne)
{
    for (int round = 0; round < 100; ++round)
        EXPECT_THAT(Uuid::random().toString(),
            testing::MatchesRegex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}"));
}

TEST(Uuid, WritesItsBytesInOrder)
{
    EXPECT_EQ((Uuid{ 0x0123456789ABCDEF, 0xFEDCBA9876543210 }).toString(), "01234567-89ab-cdef-fedc-ba9876543210");
    EXPECT_EQ(Uuid{}.toString(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, ComparesByValue)
{
    const auto uuid = Uuid::random();
    const auto copy = uuid;
    EXPECT_EQ(uuid, copy);
    EXPECT_NE(uuid, Uuid::random());
    EXPECT_EQ(std::hash<Uuid>()(uuid), std::hash<Uuid>()(copy));
}

TEST(Uuid, NeverComesTwiceFromAnyThread)
{
    constexpr std::size_t perThread = 20'000, threadCount = 4;
    std::mutex mutex;
    std::unordered_set<Uuid> all;
    std::vector<std::thread> threads;
    for (std::size_t index = 0; index < threadCount; ++index)
        threads.emplace_back([&] {
            std::vector<Uuid> own(perThread);
            for (auto& uuid : own)
                uuid = Uuid::random();
            const std::lock_guard lock(mutex);
            all.insert(own.begin(), own.end());
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(all.size(), perThread * threadCount);
}

} // namespace
} // namespace Korvane
