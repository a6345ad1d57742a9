// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/DevicePlaces.h"

#include "Core/Devices/AfcListing.h"
#include "Core/Devices/AfcWords.h"

#include <algorithm>

namespace Korvane {

namespace {

/// The components of a path, without empty ones.
std::vector<std::string_view> componentsOf(std::string_view path)
{
    std::vector<std::string_view> components;
    while (!path.empty()) {
        const auto end = std::min(path.find('/'), path.size());
        if (end > 0)
            components.push_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return components;
}

/// The place that a word names to a tool that works in "/".
std::string placeOf(std::string_view word)
{
    std::vector<std::string_view> place;
    for (const auto component : componentsOf(word)) {
        if (component == "." || (component == ".." && place.empty()))
            continue;
        if (component == "..")
            place.pop_back();
        else
            place.push_back(component);
    }
    std::string path;
    for (const auto component : place)
        path.append("/").append(component);
    return path.empty() ? "/" : path;
}

} // namespace

DevicePlaces::DevicePlaces(const std::vector<IOSMediaFolder>& listing)
{
    for (const auto& folder : listing) {
        add(folder.path);
        for (const auto& file : folder.files)
            add(file.path);
    }
}

DevicePlaces DevicePlaces::around(const std::string& path, const std::vector<IOSMediaFolder>& listing)
{
    DevicePlaces places({});
    if (isPlainWord(path))
        return places;
    auto named = possibleWords(path);
    std::transform(named.begin(), named.end(), named.begin(), placeOf);
    for (const auto& folder : listing) {
        places.add(folder.path);
        const auto inside = placeOf(folder.path) + "/";
        const auto leadsInside = [&](const std::string& place) { return place.starts_with(inside); };
        if (std::none_of(named.begin(), named.end(), leadsInside))
            continue;
        for (const auto& file : folder.files)
            places.add(file.path);
    }
    return places;
}

void DevicePlaces::add(std::string_view path)
{
    auto place = placeOf(path);
    while (m_paths.insert(place).second && place != "/")
        place = placeOf(deviceFolderOf(place));
}

bool DevicePlaces::areNamedInPlaceOf(const std::string& path) const
{
    if (isPlainWord(path))
        return false;
    const auto words = possibleWords(path);
    return std::any_of(words.begin(), words.end(), [&](const std::string& word) {
        const auto place = placeOf(word);
        return place != path && m_paths.count(place) != 0;
    });
}

bool isListedDevicePath(std::string_view path)
{
    if (!path.starts_with('/'))
        return false;
    const auto components = componentsOf(path);
    std::size_t length = 0;
    for (const auto component : components)
        length += component.size() + 1;
    return !components.empty() && length == path.size()
        && std::all_of(components.begin(), components.end(), isListedAsItself);
}

std::string deviceFolderOf(std::string_view path) { return std::string(path.substr(0, path.rfind('/'))); }

} // namespace Korvane
