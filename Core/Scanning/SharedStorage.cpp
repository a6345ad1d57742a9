// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SharedStorage.h"

#include "Platform/FileIdentity.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace Korvane {

namespace {

using Items = std::vector<ScanItem>::const_iterator;

/// A name where it stands: the volume and number of its folder, and its last component.
using Name = std::tuple<std::uint64_t, std::uint64_t, std::string>;

/// The paths of a set that lead to one file, by the name that each of them is, and how many names that file has.
struct SameFile {
    std::map<Name, std::vector<Uuid>> itemsByName;
    std::size_t itemCount = 0;
    std::uint64_t linkCount = 0;
};

std::optional<Name> nameOf(const std::filesystem::path& path)
{
    // With a dot behind it, because the folder that a scan began at may be reached by a link.
    const auto folder = identityOfItem(path.parent_path() / ".");
    if (!folder)
        return std::nullopt;
    return Name(folder->volume, folder->number, path.filename().native());
}

Items endOfSet(Items begin, Items end)
{
    return std::find_if(begin + 1, end, [](const ScanItem& item) { return !item.selectableByDefault; });
}

void addFile(const SameFile& file, std::size_t sizeOfSet, SharedStorageOfItems& found)
{
    // More places than the file has names: it is itself mounted somewhere, and some of the places are one name.
    const bool isMountedItself = file.itemsByName.size() > file.linkCount;
    const bool isWholeSet = file.itemCount > 1 && file.itemCount == sizeOfSet;
    for (const auto& [name, items] : file.itemsByName) {
        const bool isReachedTwice = items.size() > 1 || isMountedItself;
        if (!isReachedTwice && !isWholeSet)
            continue;
        for (const auto& id : items)
            found.emplace(id, isReachedTwice ? SharedStorage::OneName : SharedStorage::OneFile);
    }
}

void addSet(Items begin, Items end, const Cancellation& cancellation, SharedStorageOfItems& found)
{
    std::map<std::pair<std::uint64_t, std::uint64_t>, SameFile> files;
    for (auto item = begin; item != end; ++item) {
        cancellation.throwIfCancelled();
        const auto identity = identityOfItem(item->url);
        const auto name = identity ? nameOf(item->url) : std::nullopt;
        if (!name)
            continue;
        auto& file = files[{ identity->volume, identity->number }];
        file.itemsByName[*name].push_back(item->id);
        ++file.itemCount;
        file.linkCount = identity->linkCount;
    }
    for (const auto& [number, file] : files)
        addFile(file, static_cast<std::size_t>(std::distance(begin, end)), found);
}

} // namespace

SharedStorageOfItems sharedStorageInSets(const std::vector<ScanItem>& items, const Cancellation& cancellation)
{
    SharedStorageOfItems found;
    for (auto begin = items.begin(); begin != items.end();) {
        const auto end = endOfSet(begin, items.end());
        addSet(begin, end, cancellation, found);
        begin = end;
    }
    return found;
}

} // namespace Korvane
