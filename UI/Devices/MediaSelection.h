// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Devices/MediaListing.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Korvane {

/// Which files of a listing are ticked, with a count for each folder, so that no count takes a walk. A plain value; a
/// position that the listing does not have is not to be asked for.
class MediaSelection {
public:
    using Place = MediaListing::Place;

    MediaSelection() = default;
    /// Nothing of this listing.
    explicit MediaSelection(const MediaListing& listing);

    bool contains(Place place) const { return m_folders[place.folder].ticks[place.file]; }
    /// How many files of this folder are ticked.
    std::size_t count(std::size_t folder) const { return m_folders[folder].count; }
    /// How many files are ticked.
    std::size_t count() const { return m_count; }

    void set(Place place, bool ticked);
    /// Every file of a folder.
    void setFolder(std::size_t folder, bool ticked);

    /// What is ticked of the listing that it was made of, in the order of that.
    std::vector<IOSMediaFile> files(const MediaListing& listing) const;
    /// The same of another listing: what is not in it is ticked no more.
    MediaSelection carriedOver(const MediaListing& from, const MediaListing& to) const;

private:
    struct Folder {
        std::vector<bool> ticks;
        std::size_t count = 0;
    };

    std::vector<Folder> m_folders;
    std::size_t m_count = 0;
};

} // namespace Korvane
