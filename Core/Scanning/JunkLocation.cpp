// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/JunkLocation.h"

#include "Platform/FileAttributes.h"
#include "Platform/Host.h"

#include <algorithm>

namespace Korvane {

namespace {

using Expansion = JunkLocation::Expansion;
using Provider = JunkLocation::Provider;

/// Whether all users share a folder, or the one that a link in its place leads to.
bool isShared(const std::filesystem::path& folder) { return attributesOfItem(folder / ".").isSharedSticky; }

/// A temporary directory that all users share is not this user's to remove: only what they left in it is.
Expansion expansionOfTemporaryDirectory(const std::filesystem::path& folder)
{
    return isShared(folder) ? Expansion::EachUnusedChild : Expansion::WholeFolder;
}

std::vector<JunkLocation> fixedLocations(const FileManager& files)
{
    const auto home = files.homeDirectoryForCurrentUser();
    const auto temporary = files.temporaryDirectory();
    return {
        { home / "Library/Caches", JunkCategory::userCaches, Expansion::EachChild },
        { home / "Library/Logs", JunkCategory::logFiles, Expansion::EachChild },
        { home / "Library/Developer/Xcode/DerivedData", JunkCategory::xcodeJunk, Expansion::EachChild },
        { home / "Library/Developer/CoreSimulator/Caches", JunkCategory::xcodeJunk, Expansion::WholeFolder },
        { temporary, JunkCategory::temporaryFiles, expansionOfTemporaryDirectory(temporary) },
        { home / ".Trash", JunkCategory::trash, Expansion::WholeFolder },
    };
}

/// Whether all that a place holds, or each thing in it, is listed as long as the place is there.
bool isListedWhole(const JunkLocation& location)
{
    // What lies in a shared temporary directory is told apart child by child, and may be a place of its own.
    if (location.expansion == Expansion::EachUnusedChild)
        return false;
    // A link in the place of a whole folder is measured as a link: what it leads to is not listed by it.
    return location.expansion == Expansion::EachChild || !attributesOfItem(location.url).isLink;
}

} // namespace

std::vector<JunkLocation> junkLocations(const Host& host)
{
    auto locations = fixedLocations(*host.files);
    const auto ofTheUser = placesOfTheUser(host);
    PlaceOverlap taken;
    taken.add(host.files->homeDirectoryForCurrentUser() / "Library");
    for (const auto& location : locations) {
        if (isListedWhole(location))
            taken.add(location.url);
    }
    const auto addOwn = [&](const std::filesystem::path& url, std::string_view category, Expansion expansion) {
        // A place that lies in one that is expanded is left out there, as a child.
        const bool isTaken = expansion == Expansion::EachChild ? taken.isOrLiesInPlace(url) : taken.overlaps(url);
        if (isTaken || ofTheUser.isOrContainsPlace(url) || isShared(url))
            return;
        taken.add(url);
        locations.push_back({ url, category, expansion, Provider::Host });
    };
    for (const auto& cache : host.files->additionalCacheDirectories())
        addOwn(cache, JunkCategory::userCaches, Expansion::EachChild);
    for (const auto& trash : host.files->additionalTrashDirectories())
        addOwn(trash, JunkCategory::trash, Expansion::WholeFolder);
    locations.erase(std::remove_if(locations.begin(), locations.end(),
                        [](const JunkLocation& location) { return !location.url.is_absolute(); }),
        locations.end());
    return locations;
}

PlaceOverlap placesOfTheUser(const Host& host)
{
    const auto home = host.files->homeDirectoryForCurrentUser();
    PlaceOverlap places;
    for (const auto& place :
        { home, home / ".local/share", home / ".config", host.environment.dataHome(), host.environment.configHome() })
        places.add(place);
    return places;
}

} // namespace Korvane
