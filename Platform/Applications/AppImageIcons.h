// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Applications/InsideFolder.h"
#include "Platform/Cancellation.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Korvane {

/// Which icon files belong to which AppImage and to nothing else.
class AppImageIcons {
public:
    /// Icons are named within `iconsFolder`, the user's own.
    AppImageIcons(std::filesystem::path iconsFolder, const InsideFolder& home);

    /// Takes note that an entry names an icon, for an image or, when that is empty, for something else.
    void addEntry(const std::string& icon, const std::filesystem::path& image);

    /// Looks for the files of all icons that were named for one image only. Throws CancellationError.
    void find(const Cancellation& cancellation);

    /// Those of one image, sorted.
    std::vector<std::filesystem::path> iconsOf(const std::filesystem::path& image) const;

private:
    const std::filesystem::path* ownerOf(const std::string& icon) const;
    void addNamed(const std::filesystem::path& file);
    bool isBeside(const std::filesystem::path& icon, const std::filesystem::path& image) const;
    void findIn(const std::filesystem::path& folder, int depth, const Cancellation& cancellation);

    std::filesystem::path m_iconsFolder;
    InsideFolder m_home;
    std::map<std::string, std::set<std::filesystem::path>> m_images; ///< By icon, those that it was named for.
    std::map<std::filesystem::path, std::set<std::filesystem::path>> m_found; ///< By image.
};

} // namespace Korvane
