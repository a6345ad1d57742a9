// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/NameSet.h"

#include <gtest/gtest.h>

namespace Korvane {
namespace {

TEST(NameSetTest, TakesEachNameOnce)
{
    NameSet names;
    for (int round = 0; round < 2; ++round) {
        for (int index = 0; index < 10'000; ++index)
            EXPECT_EQ(names.insert("name" + std::to_string(index)), round == 0);
    }
    EXPECT_EQ(names.size(), 10'000U);
}

TEST(NameSetTest, NamesAreBytes)
{
    NameSet names;
    EXPECT_TRUE(names.insert(""));
    EXPECT_TRUE(names.insert("\xff"));
    EXPECT_TRUE(names.insert("\xff\xfe"));
    EXPECT_FALSE(names.insert("\xff"));
    EXPECT_FALSE(names.insert(""));
}

} // namespace
} // namespace Korvane
