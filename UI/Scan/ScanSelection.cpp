// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanSelection.h"

#include "Platform/Checked.h"

#include <algorithm>
#include <utility>

namespace Korvane {

ScanSelection::ScanSelection()
    : ScanSelection(std::make_shared<const ScanFindings>())
{
}

ScanSelection::ScanSelection(std::shared_ptr<const ScanFindings> findings)
    : m_findings(std::move(findings))
    , m_ticked(m_findings->items().size(), false)
    , m_countInCategory(m_findings->categories().size(), 0)
{
}

ScanSelection ScanSelection::ofDefaults(std::shared_ptr<const ScanFindings> findings)
{
    ScanSelection selection(std::move(findings));
    for (std::size_t index = 0; index < selection.m_ticked.size(); ++index)
        selection.setItem(index, selection.m_findings->items()[index].selectableByDefault);
    return selection;
}

bool ScanSelection::contains(const Uuid& id) const
{
    const auto index = m_findings->indexOf(id);
    return index && m_ticked[*index];
}

void ScanSelection::setItem(std::size_t itemIndex, bool ticked)
{
    if (m_ticked[itemIndex] == ticked)
        return;
    m_ticked[itemIndex] = ticked;
    const std::int64_t bytes = m_findings->items()[itemIndex].sizeInBytes;
    std::size_t& countInCategory = m_countInCategory[m_findings->categoryOf(itemIndex)];
    if (ticked) {
        ++m_count;
        ++countInCategory;
        m_bytes = checkedAdd(m_bytes, bytes);
    } else {
        --m_count;
        --countInCategory;
        m_bytes = checkedAdd(m_bytes, -bytes);
    }
}

void ScanSelection::toggleCategory(std::size_t category)
{
    const ScanFindings::Category& rows = m_findings->categories()[category];
    bool hasDefaults = false;
    for (std::size_t row = rows.firstRow; row < rows.firstRow + rows.itemCount; ++row)
        hasDefaults = hasDefaults || m_findings->items()[m_findings->itemInRow(row)].selectableByDefault;
    std::vector<std::size_t> meant;
    bool isEachTicked = true;
    for (std::size_t row = rows.firstRow; row < rows.firstRow + rows.itemCount; ++row) {
        const std::size_t item = m_findings->itemInRow(row);
        if (hasDefaults && !m_findings->items()[item].selectableByDefault)
            continue;
        meant.push_back(item);
        isEachTicked = isEachTicked && m_ticked[item];
    }
    for (const std::size_t item : meant)
        setItem(item, true);
    for (std::size_t row = rows.firstRow; isEachTicked && row < rows.firstRow + rows.itemCount; ++row)
        setItem(m_findings->itemInRow(row), false);
}

void ScanSelection::setAll(bool ticked)
{
    std::fill(m_ticked.begin(), m_ticked.end(), ticked);
    m_count = ticked ? m_ticked.size() : 0;
    m_bytes = ticked ? m_findings->totalBytes() : 0;
    for (std::size_t category = 0; category < m_countInCategory.size(); ++category)
        m_countInCategory[category] = ticked ? m_findings->categories()[category].itemCount : 0;
}

std::vector<ScanItem> ScanSelection::items() const
{
    std::vector<ScanItem> ticked;
    ticked.reserve(m_count);
    for (std::size_t index = 0; index < m_ticked.size(); ++index) {
        if (m_ticked[index])
            ticked.push_back(m_findings->items()[index]);
    }
    return ticked;
}

} // namespace Korvane
