// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/MediaSelection.h"

namespace Korvane {

MediaSelection::MediaSelection(const MediaListing& listing)
{
    m_folders.reserve(listing.folders().size());
    for (const IOSMediaFolder& folder : listing.folders())
        m_folders.push_back({ std::vector<bool>(folder.files.size()), 0 });
}

void MediaSelection::set(Place place, bool ticked)
{
    Folder& folder = m_folders[place.folder];
    if (folder.ticks[place.file] == ticked)
        return;
    folder.ticks[place.file] = ticked;
    folder.count = ticked ? folder.count + 1 : folder.count - 1;
    m_count = ticked ? m_count + 1 : m_count - 1;
}

void MediaSelection::setFolder(std::size_t index, bool ticked)
{
    Folder& folder = m_folders[index];
    const std::size_t count = ticked ? folder.ticks.size() : 0;
    m_count = m_count - folder.count + count;
    folder.count = count;
    folder.ticks.assign(folder.ticks.size(), ticked);
}

std::vector<IOSMediaFile> MediaSelection::files(const MediaListing& listing) const
{
    std::vector<IOSMediaFile> files;
    files.reserve(m_count);
    for (std::size_t folder = 0; folder < m_folders.size(); ++folder) {
        const std::vector<bool>& ticks = m_folders[folder].ticks;
        for (std::size_t file = 0; file < ticks.size(); ++file) {
            if (ticks[file])
                files.push_back(listing.file({ folder, file }));
        }
    }
    return files;
}

MediaSelection MediaSelection::carriedOver(const MediaListing& from, const MediaListing& to) const
{
    MediaSelection selection(to);
    for (const IOSMediaFile& file : files(from)) {
        if (const auto place = to.find(file.path))
            selection.set(*place, true);
    }
    return selection;
}

} // namespace Korvane
