// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanFindings.h"

#include "Platform/Checked.h"

#include <utility>

namespace Korvane {

ScanFindings::ScanFindings(std::vector<ScanItem> items, SharedStorageOfItems shared)
    : m_items(std::move(items))
    , m_shared(std::move(shared))
{
    sortIntoCategories();
    layOutRows();
}

void ScanFindings::sortIntoCategories()
{
    m_indexById.reserve(m_items.size());
    m_categoryOfItem.reserve(m_items.size());
    for (const ScanItem& item : m_items) {
        const auto [entry, isNew] = m_categoryByTitle.try_emplace(item.category, m_categories.size());
        if (isNew)
            m_categories.push_back({ item.category });
        Category& category = m_categories[entry->second];
        category.totalBytes = checkedAdd(category.totalBytes, item.sizeInBytes);
        ++category.itemCount;
        m_totalBytes = checkedAdd(m_totalBytes, item.sizeInBytes);
        m_indexById.emplace(item.id, m_categoryOfItem.size());
        m_categoryOfItem.push_back(entry->second);
    }
}

void ScanFindings::layOutRows()
{
    std::vector<std::size_t> nextRow;
    nextRow.reserve(m_categories.size());
    std::size_t firstRow = 0;
    for (Category& category : m_categories) {
        category.firstRow = firstRow;
        nextRow.push_back(firstRow);
        firstRow += category.itemCount;
    }
    m_itemInRow.resize(m_items.size());
    m_rowOfItem.resize(m_items.size());
    for (std::size_t index = 0; index < m_items.size(); ++index) {
        const std::size_t row = nextRow[m_categoryOfItem[index]]++;
        m_itemInRow[row] = index;
        m_rowOfItem[index] = row;
    }
}

std::optional<std::size_t> ScanFindings::indexOf(const Uuid& id) const
{
    const auto entry = m_indexById.find(id);
    if (entry == m_indexById.end())
        return std::nullopt;
    return entry->second;
}

std::optional<std::size_t> ScanFindings::categoryNamed(const std::string& title) const
{
    const auto entry = m_categoryByTitle.find(title);
    if (entry == m_categoryByTitle.end())
        return std::nullopt;
    return entry->second;
}

std::optional<SharedStorage> ScanFindings::sharedStorageOf(const Uuid& id) const
{
    const auto entry = m_shared.find(id);
    if (entry == m_shared.end())
        return std::nullopt;
    return entry->second;
}

} // namespace Korvane
