// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SharedStorage.h"

#include "Platform/FileIdentity.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace Korvane {

namespace {

using Items = std::vector<ScanItem>::const_iterator;

/// The paths of a set that lead to one file, and how many names that file has.
struct SameFile {
    std::vector<Uuid> items;
    std::uint64_t linkCount;
};

Items endOfSet(Items begin, Items end)
{
    return std::find_if(begin + 1, end, [](const ScanItem& item) { return !item.selectableByDefault; });
}

void addSet(Items begin, Items end, SharedStorageOfItems& found)
{
    std::map<std::pair<std::uint64_t, std::uint64_t>, SameFile> files;
    for (auto item = begin; item != end; ++item) {
        const auto identity = identityOfItem(item->url);
        if (!identity)
            continue;
        auto& file = files[{ identity->volume, identity->number }];
        file.items.push_back(item->id);
        file.linkCount = identity->linkCount;
    }
    for (const auto& [number, file] : files) {
        // More paths than names: some of the paths are one name, reached twice.
        if (file.items.size() > file.linkCount) {
            for (const auto& id : file.items)
                found.emplace(id, SharedStorage::OneName);
        } else if (file.items.size() > 1
            && std::distance(begin, end) == static_cast<std::ptrdiff_t>(file.items.size())) {
            for (const auto& id : file.items)
                found.emplace(id, SharedStorage::OneFile);
        }
    }
}

} // namespace

SharedStorageOfItems sharedStorageInSets(const std::vector<ScanItem>& items, const Cancellation& cancellation)
{
    SharedStorageOfItems found;
    for (auto begin = items.begin(); begin != items.end();) {
        cancellation.throwIfCancelled();
        const auto end = endOfSet(begin, items.end());
        addSet(begin, end, found);
        begin = end;
    }
    return found;
}

} // namespace Korvane
