// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/CancellableSort.h"

#include "Core/Scanning/DuplicateCandidate.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Korvane {

namespace {

using Pair = std::pair<int, std::string>;

std::vector<Pair> shuffled(std::size_t count)
{
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < count; ++i)
        pairs.emplace_back(static_cast<int>(i * 7919 % 1009), std::to_string(i));
    return pairs;
}

bool lessByNumber(const Pair& left, const Pair& right) { return left.first < right.first; }

} // namespace

TEST(CancellableSortTest, OrdersAsAStableSortDoes)
{
    auto pairs = shuffled(20'000);
    auto expected = pairs;
    std::stable_sort(expected.begin(), expected.end(), lessByNumber);
    cancellableStableSort(pairs, {}, lessByNumber);
    EXPECT_EQ(pairs, expected);
}

TEST(CancellableSortTest, ComparesLittleMoreAfterACancel)
{
    auto pairs = shuffled(100'000);
    const Cancellation cancellation;
    std::uint32_t comparisons = 0;
    const auto cancelInTheMiddle = [&](const Pair& left, const Pair& right) {
        if (++comparisons == 100'000)
            cancellation.cancel();
        return lessByNumber(left, right);
    };
    EXPECT_THROW(cancellableStableSort(pairs, cancellation, cancelInTheMiddle), CancellationError);
    EXPECT_LE(comparisons, 101'024U);
}

TEST(CancellableSortTest, CancelledListOfCandidatesIsGivenUp)
{
    std::vector<DuplicateCandidate> candidates;
    for (int i = 0; i < 3000; ++i)
        candidates.emplace_back(std::to_string(i), 5, std::nullopt);
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(sortBySize(candidates, cancellation), CancellationError);
    EXPECT_THROW(sortOldestFirst(candidates, cancellation), CancellationError);
}

} // namespace Korvane
