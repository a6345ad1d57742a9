// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcListing.h"
#include "Tests/Fuzz/AfcListingExercise.h"
#include "Tests/Fuzz/Mutator.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

namespace Korvane {

namespace {

/// The names in a listing, read by other means than parseNames: one regular expression for each rule.
std::vector<std::string> namesByRules(const std::string& output)
{
    static const std::regex blanksAround("^[ \t]+|[ \t]+$"), promptBefore("^(?:.|\r)*> "), none("^\\.?\\.?$|^Error|: "),
        slash("/$");
    std::vector<std::string> names;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        line = std::regex_replace(line, blanksAround, "");
        line = std::regex_replace(line, promptBefore, "");
        line = std::regex_replace(line, blanksAround, "");
        if (std::regex_search(line, none))
            continue;
        line = std::regex_replace(line, slash, "");
        if (!line.empty())
            names.push_back(line);
    }
    return names;
}

} // namespace

TEST(AfcListingFuzz, NothingBredFromListingsDoesHarm)
{
    for (const auto& seed : afcListingSeeds())
        EXPECT_EQ(exerciseAfcListing(seed), "") << seed;
    Mutator mutator(afcListingSeeds(), 20070629);
    constexpr std::size_t inputs = 50'000;
    std::size_t withNames = 0;
    for (std::size_t input = 0; input < inputs; ++input) {
        const auto bytes = mutator.next();
        ASSERT_EQ(exerciseAfcListing(bytes), "") << "input " << input << ": " << bytes;
        withNames += credibleNames(parseNames(bytes), { "quit" }).empty() ? 0 : 1;
    }
    // Inputs without any names would prove little.
    EXPECT_GT(withNames, inputs / 4);
    EXPECT_LT(withNames, inputs);
}

TEST(AfcListingFuzz, NamesAreThoseOfTheRulesReadAnotherWay)
{
    Mutator mutator(afcListingSeeds(), 12);
    for (int input = 0; input < 5'000; ++input) {
        const auto bytes = mutator.next();
        ASSERT_EQ(parseNames(bytes), namesByRules(bytes)) << "input " << input << ": " << bytes;
    }
}

} // namespace Korvane
