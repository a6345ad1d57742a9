// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FindingsReport.h"

#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

namespace Korvane {

FindingsReport::FindingsReport(const ProgressHandler& progress)
    : m_progress(progress)
{
}

void FindingsReport::count(std::int64_t bytes)
{
    m_found.itemsFound = checkedAdd(m_found.itemsFound, 1);
    m_found.bytesFound = checkedAdd(m_found.bytesFound, bytes);
}

void FindingsReport::tell(const std::filesystem::path& url)
{
    if (!m_progress || !m_throttle.shouldEmit())
        return;
    m_found.currentPath = displayText(url);
    m_progress(m_found);
}

} // namespace Korvane
