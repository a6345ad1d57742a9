// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"
#include "Platform/Uuid.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// One installed application with what it has left in the user's folders. A plain value; compared member by member.
struct InstalledApp {
    /// What is installed, and so how it goes: a bundle and an AppImage to the Trash, a Flatpak by its own tool.
    enum class Kind { Bundle, AppImage, Flatpak };

    Uuid id; ///< Fresh for every construction: two scans of one application give two values.
    std::filesystem::path url; ///< Absolute location of the bundle, of the AppImage, or of the Flatpak's folder.
    std::string name; ///< Shown in lists, UTF-8; of a bundle its file name without the extension.
    std::optional<std::string> bundleID; ///< The identifier exactly as the application states it, bytes; may be absent.
    std::int64_t sizeInBytes = 0; ///< Allocated bytes of what lies at `url`.
    std::vector<ScanItem> leftovers; ///< In the order in which their places are looked at.
    Kind kind = Kind::Bundle;

    /// Makes an application with an identity of its own.
    InstalledApp(std::filesystem::path url, std::string name, std::optional<std::string> bundleID,
        std::int64_t sizeInBytes, std::vector<ScanItem> leftovers, Kind kind = Kind::Bundle);

    /// Allocated bytes of the application and all its leftovers; a sum that does not fit stops the program.
    std::int64_t totalSize() const;

    bool operator==(const InstalledApp&) const = default;
};

} // namespace Korvane

/// Combines all members.
template <> struct std::hash<Korvane::InstalledApp> {
    std::size_t operator()(const Korvane::InstalledApp& app) const noexcept;
};
