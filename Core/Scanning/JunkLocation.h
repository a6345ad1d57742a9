// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/PlaceOverlap.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace Korvane {

struct Host;

/// The headings of System Junk.
namespace JunkCategory {
inline constexpr std::string_view userCaches = "User Caches";
inline constexpr std::string_view logFiles = "Log Files";
inline constexpr std::string_view xcodeJunk = "Xcode Junk";
inline constexpr std::string_view temporaryFiles = "Temporary Files";
inline constexpr std::string_view trash = "Trash";
} // namespace JunkCategory

/// One place that System Junk looks at.
struct JunkLocation {
    /// What of the place becomes an item.
    enum class Expansion {
        WholeFolder, ///< The folder itself, as one.
        EachChild, ///< Each direct child that is not hidden.
        EachUnusedChild, ///< Each direct child that is not hidden, is the user's own and has lain unused for a day.
    };
    /// Who names the place.
    enum class Provider { Everywhere, Host };

    std::filesystem::path url;
    std::string_view category;
    Expansion expansion;
    Provider provider = Provider::Everywhere;
};

/// The six places that every host has, in the order in which they are looked at, then this host's own.
///
/// A place of the host that is or lies in another one is left out: nothing is listed twice. So is one that is or holds
/// what is the user's own, whatever the environment calls it, and a Trash that holds another place; in a cache
/// directory it is the child that holds one which is not listed.
/// A place that is no absolute path is left out: it would lead to wherever the program happens to have been started.
std::vector<JunkLocation> junkLocations(const Host& host);

/// The home folder, and the folders in which applications keep the user's data and settings: where the environment
/// names them, and where they lie when it does not.
PlaceOverlap placesOfTheUser(const Host& host);

} // namespace Korvane
