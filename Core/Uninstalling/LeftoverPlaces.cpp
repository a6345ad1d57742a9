// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/LeftoverPlaces.h"

#include "Core/Cleaning/Cleaner.h"

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

/// Names in the base directories that are the desktop's own, or shared by all applications: a desktop entry of such a
/// name would otherwise claim the user's other entries, passwords or settings.
constexpr std::array<std::string_view, 52> sharedNames{ "Trash", "applications", "autostart", "backgrounds",
    "bash-completion", "color-schemes", "containers", "dbus-1", "dconf", "desktop-directories", "environment.d",
    "evolution", "flatpak", "folks", "fontconfig", "fonts", "gnome-shell", "gnupg", "gtk-2.0", "gtk-3.0", "gtk-4.0",
    "gvfs-metadata", "help", "icc", "icons", "kdeglobals", "keyrings", "korvane", "kwalletd", "kwinrc", "locale", "man",
    "menus", "mesa_shader_cache", "metainfo", "mime", "mimeapps.list", "nautilus", "org.korvane.Korvane", "pip", "pki",
    "plasma", "pulse", "recently-used.xbel", "sounds", "systemd", "themes", "thumbnails", "user-dirs.dirs",
    "user-dirs.locale", "wayland-sessions", "xsessions" };

bool isShared(std::string_view name)
{
    return std::find(sharedNames.begin(), sharedNames.end(), name) != sharedNames.end();
}

} // namespace

bool isFileName(std::string_view identifier)
{
    using namespace std::string_view_literals;
    return !identifier.empty() && identifier != "." && identifier != ".."
        && identifier.find_first_of("/\0"sv) == std::string_view::npos;
}

std::vector<LeftoverPlace> desktopLeftoverPlaces(
    const std::string& identifier, const Environment& environment, const FileManager& files)
{
    if (!isFileName(identifier) || isShared(identifier))
        return {};
    std::vector<LeftoverPlace> places{
        { environment.dataHome() / identifier, "Application Support" },
        { environment.configHome() / identifier, "Preferences" },
        { environment.cacheHome() / identifier, "Caches" },
        { environment.stateHome() / identifier, "Other Leftovers" },
    };
    // The variables may put several of them into one folder, or into a Trash, from which nothing comes back.
    std::vector<LeftoverPlace> distinct;
    for (auto& place : places) {
        const bool isKnown = std::any_of(
            distinct.begin(), distinct.end(), [&](const LeftoverPlace& other) { return other.url == place.url; });
        if (!isKnown && Cleaner::action(place.url, true, files) == Cleaner::Action::MoveToTrash)
            distinct.push_back(std::move(place));
    }
    return distinct;
}

} // namespace Korvane
