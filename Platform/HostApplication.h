// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// An application that the user has installed in another way than as a bundle in an application folder.
struct HostApplication {
    enum class Kind {
        AppImage, ///< One file that is the application, with desktop entries and icons that name it.
        Flatpak, ///< A folder of the user's Flatpak installation; only its own tool may remove it.
    };

    Kind kind = Kind::AppImage;
    std::string identifier; ///< AppImage: the id of its desktop entry. Flatpak: the application id. Never empty.
    std::string name; ///< The name to be shown, UTF-8 unless the entry's is not.
    std::filesystem::path path; ///< AppImage: the file. Flatpak: "app/ID" in the user's installation.
    std::vector<std::filesystem::path> desktopEntries; ///< AppImage: the user's entries that start it, sorted.
    std::vector<std::filesystem::path> icons; ///< AppImage: its icons (PNG, SVG, XPM), sorted.
};

} // namespace Korvane
