// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <vector>

namespace Korvane {

/// A set of folders that are not to be listed twice, or offered as part of something else.
///
/// Links on the way to a folder are resolved, so that two names of one place are found to be one.
class PlaceOverlap {
public:
    void add(const std::filesystem::path& place);

    /// Whether `folder` is one of the places, contains one, or lies in one.
    bool overlaps(const std::filesystem::path& folder) const;
    /// Whether `folder` is one of the places or lies in one.
    bool isOrLiesInPlace(const std::filesystem::path& folder) const;
    /// Whether `folder` is one of the places or contains one.
    bool isOrContainsPlace(const std::filesystem::path& folder) const;

private:
    std::vector<std::filesystem::path> m_places; ///< Resolved.
};

} // namespace Korvane
