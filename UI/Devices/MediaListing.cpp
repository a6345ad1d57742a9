// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/MediaListing.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

/// Only what had not been listed before stays.
std::vector<IOSMediaFolder> withoutRepetitions(std::vector<IOSMediaFolder> folders)
{
    std::unordered_set<std::string> paths;
    for (IOSMediaFolder& folder : folders) {
        const auto isRepeated = [&](const IOSMediaFile& file) { return !paths.insert(file.path).second; };
        folder.files.erase(std::remove_if(folder.files.begin(), folder.files.end(), isRepeated), folder.files.end());
    }
    const auto isEmpty = [](const IOSMediaFolder& folder) { return folder.files.empty(); };
    folders.erase(std::remove_if(folders.begin(), folders.end(), isEmpty), folders.end());
    return folders;
}

} // namespace

MediaListing::MediaListing(std::vector<IOSMediaFolder> folders)
    : m_folders(withoutRepetitions(std::move(folders)))
{
    for (std::size_t folder = 0; folder < m_folders.size(); ++folder) {
        const std::vector<IOSMediaFile>& files = m_folders[folder].files;
        for (std::size_t file = 0; file < files.size(); ++file)
            m_places.emplace(files[file].path, Place{ folder, file });
    }
}

std::optional<MediaListing::Place> MediaListing::find(std::string_view path) const
{
    const auto found = m_places.find(path);
    return found == m_places.end() ? std::nullopt : std::optional(found->second);
}

} // namespace Korvane
