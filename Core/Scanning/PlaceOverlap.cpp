// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/PlaceOverlap.h"

#include <algorithm>
#include <system_error>

namespace Korvane {

namespace {

/// The path with links resolved as far as it exists, and without a slash behind it.
std::filesystem::path resolved(const std::filesystem::path& path)
{
    std::error_code error;
    auto real = std::filesystem::weakly_canonical(path, error);
    if (error)
        real = path.lexically_normal();
    return real.has_filename() || !real.has_relative_path() ? real : real.parent_path();
}

bool isOrLiesIn(const std::filesystem::path& path, const std::filesystem::path& folder)
{
    const auto [folderEnd, pathEnd] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
    return folderEnd == folder.end();
}

} // namespace

void PlaceOverlap::add(const std::filesystem::path& place) { m_places.push_back(resolved(place)); }

bool PlaceOverlap::overlaps(const std::filesystem::path& folder) const
{
    const auto real = resolved(folder);
    return std::any_of(m_places.begin(), m_places.end(),
        [&](const std::filesystem::path& place) { return isOrLiesIn(place, real) || isOrLiesIn(real, place); });
}

bool PlaceOverlap::isOrLiesInPlace(const std::filesystem::path& folder) const
{
    const auto real = resolved(folder);
    return std::any_of(
        m_places.begin(), m_places.end(), [&](const std::filesystem::path& place) { return isOrLiesIn(real, place); });
}

bool PlaceOverlap::isOrContainsPlace(const std::filesystem::path& folder) const
{
    const auto real = resolved(folder);
    return std::any_of(
        m_places.begin(), m_places.end(), [&](const std::filesystem::path& place) { return isOrLiesIn(place, real); });
}

} // namespace Korvane
