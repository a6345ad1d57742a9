// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ReadingBudget.h"

#include "Platform/SmallFile.h"

#include <algorithm>
#include <cerrno>

namespace Korvane {

ReadingBudget::ReadingBudget(std::size_t largest, std::size_t large) noexcept
    : m_largest(largest)
    , m_left(large)
{
}

std::optional<std::string> ReadingBudget::contents(const std::filesystem::path& path)
{
    const auto limit = m_left >= m_largest ? m_largest : smallFile;
    auto text = contentsOfSmallFile(path, limit);
    // A file that turns out to be too large has been read as far as the limit.
    const auto cost = text ? text->size() : errno == EFBIG ? limit : 0;
    if (cost > smallFile)
        m_left -= std::min(cost, m_left);
    return text;
}

} // namespace Korvane
