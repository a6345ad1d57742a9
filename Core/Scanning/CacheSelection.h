// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace Korvane {

/// Decides which cache folders may be pre-selected for cleaning.
class CacheSelection {
public:
    CacheSelection() = delete;

    /// Whether no running application and no component of the system owns the cache, as far as its name tells.
    ///
    /// Letter case does not matter. Names of fewer than 4 characters are compared by equality only: as parts they
    /// would match every identifier.
    static bool isSafeToAutoSelect(
        std::string_view cacheFolder, const std::unordered_set<std::string>& runningBundleIDs);

    /// Whether the cache, in a host's own cache directory, belongs to something that runs for as long as the user is
    /// logged in, or keeps there what is no cache: input methods, desktop shells, search indexes, wallpapers, mounts.
    static bool isNeededByDesktop(std::string_view cacheFolder);
};

} // namespace Korvane
