// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Scan/ScanFindings.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Korvane {

/// The set of the items that the user has ticked among the findings of one scan.
///
/// Its sums are kept up to date with every change, so that reading them costs nothing however many items there are.
class ScanSelection {
public:
    /// Nothing of nothing.
    ScanSelection();

    /// Exactly those of the findings that are selectable by default.
    static ScanSelection ofDefaults(std::shared_ptr<const ScanFindings> findings);

    bool contains(const Uuid& id) const;
    bool containsItem(std::size_t itemIndex) const { return m_ticked[itemIndex]; }

    /// Ticks or unticks one item, by its place in the findings.
    void setItem(std::size_t itemIndex, bool ticked);
    /// Ticks those of a category that are selectable by default, or all of it where none is; once they are all ticked,
    /// unticks the whole category. What a scan does not tick by itself, such as the original of a set of duplicates, is
    /// thus never ticked along with the rest, only by itself or with all there is.
    void toggleCategory(std::size_t category);
    /// Ticks or unticks all items.
    void setAll(bool ticked);

    /// How many items are ticked.
    std::size_t size() const { return m_count; }
    std::size_t sizeInCategory(std::size_t category) const { return m_countInCategory[category]; }
    std::int64_t bytes() const { return m_bytes; }

    /// Copies of the ticked items, in the order of the scanner. Costs their number.
    std::vector<ScanItem> items() const;

private:
    explicit ScanSelection(std::shared_ptr<const ScanFindings> findings);

    std::shared_ptr<const ScanFindings> m_findings;
    std::vector<bool> m_ticked; ///< One flag for each item of the findings.
    std::vector<std::size_t> m_countInCategory; ///< Ticked items of each category of the findings.
    std::size_t m_count = 0;
    std::int64_t m_bytes = 0;
};

} // namespace Korvane
