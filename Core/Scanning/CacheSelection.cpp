// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/CacheSelection.h"

#include "Platform/LowerCase.h"

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

constexpr std::string_view systemPrefix = "com.apple.";
constexpr std::ptrdiff_t shortestPartialMatch = 4;

/// A cache of the desktop itself, by the beginning of its name or by the whole of it; lower case.
struct DesktopCache {
    enum class Match { Whole, Beginning };

    std::string_view name;
    Match match;
};

using Match = DesktopCache::Match;

constexpr std::array desktopCaches{
    // Input methods: words learnt and tables built for typing, open while anything can be typed into.
    DesktopCache{ "ibus", Match::Beginning },
    DesktopCache{ "fcitx", Match::Beginning },
    DesktopCache{ "uim", Match::Whole },
    DesktopCache{ "scim", Match::Whole },
    DesktopCache{ "mozc", Match::Whole },
    // Desktop shells and what they hand out to every application; Xfce keeps saved sessions among its caches.
    DesktopCache{ "gnome-shell", Match::Beginning },
    DesktopCache{ "gnome-control-center", Match::Whole },
    DesktopCache{ "plasma", Match::Beginning },
    DesktopCache{ "kwin", Match::Beginning },
    DesktopCache{ "ksycoca", Match::Beginning },
    DesktopCache{ "icon-cache.kcache", Match::Whole },
    DesktopCache{ "cinnamon", Match::Beginning },
    DesktopCache{ "xfce4", Match::Beginning },
    DesktopCache{ "sessions", Match::Whole },
    DesktopCache{ "lxqt", Match::Beginning },
    DesktopCache{ "mate", Match::Whole },
    DesktopCache{ "budgie", Match::Beginning },
    DesktopCache{ "deepin", Match::Beginning },
    DesktopCache{ "xdg-desktop-portal", Match::Beginning },
    DesktopCache{ "at-spi", Match::Beginning },
    // Settings and secrets that are served from a socket or a shared page here.
    DesktopCache{ "dconf", Match::Whole },
    DesktopCache{ "keyring-", Match::Beginning },
    // Search indexes: hours of work to build again.
    DesktopCache{ "tracker", Match::Beginning },
    DesktopCache{ "localsearch", Match::Beginning },
    DesktopCache{ "baloo", Match::Beginning },
    DesktopCache{ "recoll", Match::Whole },
    DesktopCache{ "zeitgeist", Match::Whole },
    // Pictures that the desktop shows from here.
    DesktopCache{ "wallpaper", Match::Beginning },
    DesktopCache{ "backgrounds", Match::Whole },
    // Mounts: the document portal of Flatpak, Flatpak's own store, and the virtual file systems of GNOME.
    DesktopCache{ "doc", Match::Whole },
    DesktopCache{ "flatpak", Match::Whole },
    DesktopCache{ "gvfs", Match::Whole },
};

bool contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

/// Code points of UTF-8 text: every byte but those that continue one.
std::ptrdiff_t characterCount(std::string_view text)
{
    return std::count_if(
        text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
}

} // namespace

bool CacheSelection::isSafeToAutoSelect(
    std::string_view cacheFolder, const std::unordered_set<std::string>& runningBundleIDs)
{
    const auto folder = lowercased(cacheFolder);
    if (folder.compare(0, systemPrefix.size(), systemPrefix) == 0)
        return false;
    const bool comparesParts = characterCount(folder) >= shortestPartialMatch;
    return std::none_of(runningBundleIDs.begin(), runningBundleIDs.end(), [&](const std::string& identifier) {
        const auto id = lowercased(identifier);
        // An empty identifier is a part of every name and says nothing about any.
        if (id.empty())
            return false;
        return id == folder || (comparesParts && (contains(id, folder) || contains(folder, id)));
    });
}

bool CacheSelection::isNeededByDesktop(std::string_view cacheFolder)
{
    const auto folder = lowercased(cacheFolder);
    return std::any_of(desktopCaches.begin(), desktopCaches.end(), [&](const DesktopCache& cache) {
        return cache.match == Match::Whole ? folder == cache.name
                                           : folder.compare(0, cache.name.size(), cache.name) == 0;
    });
}

} // namespace Korvane
