// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Uuid.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace Korvane {

/// One candidate for cleaning. A plain value; compared member by member.
struct ScanItem {
    Uuid id; ///< Fresh for every construction: two scans of one file give two items.
    std::filesystem::path url; ///< Absolute location of the file or folder.
    std::string displayName; ///< Shown in lists, UTF-8.
    std::string category; ///< The heading under which the item is listed, UTF-8.
    std::int64_t sizeInBytes = 0; ///< Allocated bytes on disk.
    bool selectableByDefault = false; ///< Whether a scan ticks the item by itself; false: may be in use or needed.

    /// Makes an item with an identity of its own; without a display name, the last path component is shown.
    ScanItem(std::filesystem::path url, std::optional<std::string> displayName, std::string category,
        std::int64_t sizeInBytes, bool selectableByDefault);

    bool operator==(const ScanItem&) const = default;
};

} // namespace Korvane

/// Combines all six members.
template <> struct std::hash<Korvane::ScanItem> {
    std::size_t operator()(const Korvane::ScanItem& item) const noexcept;
};
