// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFolder.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Korvane {

/// The camera roll of a device as it was listed, and where each file is in it. Never changes; any thread.
class MediaListing {
public:
    /// Where a file is: the position of its folder, and its own in there.
    struct Place {
        std::size_t folder = 0;
        std::size_t file = 0;
    };

    MediaListing() = default;
    /// What is listed twice under one path is one file, the first.
    explicit MediaListing(std::vector<IOSMediaFolder> folders);
    MediaListing(const MediaListing&) = delete;
    MediaListing& operator=(const MediaListing&) = delete;

    const std::vector<IOSMediaFolder>& folders() const { return m_folders; }
    const IOSMediaFile& file(Place place) const { return m_folders[place.folder].files[place.file]; }
    /// Where the file with this path is; nothing when it is not listed.
    std::optional<Place> find(std::string_view path) const;

private:
    std::vector<IOSMediaFolder> m_folders;
    std::unordered_map<std::string_view, Place> m_places; ///< By the paths, which belong to the folders.
};

} // namespace Korvane
