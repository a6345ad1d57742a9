// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/Mutator.h"
#include "Tests/Fuzz/PropertyListExercise.h"
#include "Tests/Fuzz/PropertyListSeeds.h"

#include "Platform/PropertyList.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

std::string hexadecimal(std::string_view bytes)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4U];
        text += digits[static_cast<unsigned char>(byte) & 0xFU];
    }
    return text;
}

} // namespace

TEST(PropertyListFuzz, SeedsHoldSoundAndUnsoundLists)
{
    std::size_t sound = 0;
    const auto seeds = propertyListSeeds();
    for (const auto& seed : seeds) {
        EXPECT_EQ(exercisePropertyList(seed), "") << hexadecimal(seed);
        sound += PropertyList::parse(seed) ? 1 : 0;
    }
    EXPECT_GT(sound, seeds.size() / 2);
    EXPECT_LT(sound, seeds.size());
}

TEST(PropertyListFuzz, NothingBredFromThemDoesHarm)
{
    Mutator mutator(propertyListSeeds(), 20010101);
    constexpr std::size_t inputs = 50'000;
    std::size_t sound = 0;
    for (std::size_t input = 0; input < inputs; ++input) {
        const auto bytes = mutator.next();
        ASSERT_EQ(exercisePropertyList(bytes), "") << "input " << input << ": " << hexadecimal(bytes);
        sound += PropertyList::parse(bytes) ? 1 : 0;
    }
    // Inputs that are all refused at the first byte, or all read, would prove little.
    EXPECT_GT(sound, inputs / 50);
    EXPECT_LT(sound, inputs / 2);
}

TEST(PropertyListFuzz, TheSameInputsAreBredEverywhere)
{
    Mutator one(propertyListSeeds(), 7);
    Mutator two(propertyListSeeds(), 7);
    Mutator other(propertyListSeeds(), 8);
    bool differs = false;
    for (int input = 0; input < 100; ++input) {
        const auto bytes = one.next();
        EXPECT_EQ(bytes, two.next());
        differs = differs || bytes != other.next();
    }
    EXPECT_TRUE(differs);
}

} // namespace Korvane
