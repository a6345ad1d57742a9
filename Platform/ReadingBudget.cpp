// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ReadingBudget.h"

#include "Platform/SmallFile.h"

#include <algorithm>
#include <cerrno>

namespace Korvane {

std::optional<std::string> ReadingBudget::contents(const std::filesystem::path& path)
{
    const auto limit = m_left >= largestFile ? largestFile : smallFile;
    auto text = contentsOfSmallFile(path, limit);
    // A file that turns out to be too large has been read as far as the limit.
    const auto cost = text ? text->size() : errno == EFBIG ? limit : 0;
    if (cost > smallFile)
        m_left -= std::min(cost, m_left);
    return text;
}

} // namespace Korvane
