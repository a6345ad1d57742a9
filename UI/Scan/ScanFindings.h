// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"
#include "Core/Scanning/SharedStorage.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Korvane {

/// What one scan found, with everything that its screen looks up made ready once.
///
/// Built on the scanning thread, where its cost does not hold up the screen; never changes afterwards.
class ScanFindings {
public:
    /// The items of one category; in rows they follow each other.
    struct Category {
        std::string title;
        std::int64_t totalBytes = 0;
        std::size_t firstRow = 0;
        std::size_t itemCount = 0;
    };

    ScanFindings() = default;

    /// Takes the items in the order of the scanner. A byte total that does not fit stops the program.
    explicit ScanFindings(std::vector<ScanItem> items, SharedStorageOfItems shared = {});

    /// In the order of the scanner.
    const std::vector<ScanItem>& items() const { return m_items; }
    /// The distinct categories in the order of their first items.
    const std::vector<Category>& categories() const { return m_categories; }
    std::int64_t totalBytes() const { return m_totalBytes; }
    /// What the item shares with others of its set; nothing for most.
    std::optional<SharedStorage> sharedStorageOf(const Uuid& id) const;

    /// Where the item with this identity lies in items(); nothing when it is not of this scan.
    std::optional<std::size_t> indexOf(const Uuid& id) const;
    /// Where the category with exactly this title lies in categories().
    std::optional<std::size_t> categoryNamed(const std::string& title) const;

    /// The category of an item, by their places in the two lists.
    std::size_t categoryOf(std::size_t itemIndex) const { return m_categoryOfItem[itemIndex]; }

    /// The item shown in a row; rows go category by category, items in the order of the scanner within each.
    std::size_t itemInRow(std::size_t row) const { return m_itemInRow[row]; }
    std::size_t rowOf(std::size_t itemIndex) const { return m_rowOfItem[itemIndex]; }

private:
    void sortIntoCategories();
    void layOutRows();

    std::vector<ScanItem> m_items;
    SharedStorageOfItems m_shared;
    std::vector<Category> m_categories;
    std::int64_t m_totalBytes = 0;
    std::unordered_map<Uuid, std::size_t> m_indexById;
    std::unordered_map<std::string, std::size_t> m_categoryByTitle;
    std::vector<std::size_t> m_categoryOfItem;
    std::vector<std::size_t> m_itemInRow;
    std::vector<std::size_t> m_rowOfItem;
};

} // namespace Korvane
