// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Korvane {

/// Sorts, equal elements staying in their order; a list of a million is given up soon after a cancel.
///
/// Throws CancellationError when cancelled; the elements are then in no order and may have lost their values.
template <typename Element, typename Less>
void cancellableStableSort(std::vector<Element>& elements, const Cancellation& cancellation, Less less)
{
    constexpr std::uint32_t comparisonsBetweenLooks = 1024;
    std::uint32_t comparisons = 0;
    std::stable_sort(elements.begin(), elements.end(), [&](const Element& left, const Element& right) {
        if (++comparisons % comparisonsBetweenLooks == 0)
            cancellation.throwIfCancelled();
        return less(left, right);
    });
}

} // namespace Korvane
