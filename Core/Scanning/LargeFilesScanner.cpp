// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/LargeFilesScanner.h"

#include "Core/Scanning/CancellableSort.h"
#include "Core/Scanning/HomeWalk.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"
#include "Platform/FreedElsewhere.h"
#include "Platform/NameSet.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Korvane {

namespace {

constexpr const char* category = "Large Files";

void keepLargest(std::vector<ScanItem>& items, std::int64_t maxResults, const Cancellation& cancellation)
{
    cancellableStableSort(items, cancellation,
        [](const ScanItem& left, const ScanItem& right) { return left.sizeInBytes > right.sizeInBytes; });
    const auto kept = std::clamp<std::int64_t>(maxResults, 0, static_cast<std::int64_t>(items.size()));
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(kept), items.end());
}

} // namespace

LargeFilesScanner::LargeFilesScanner(std::int64_t threshold, std::int64_t maximumResults)
    : thresholdBytes(threshold)
    , maxResults(maximumResults)
{
}

std::vector<ScanItem> LargeFilesScanner::scan(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    const auto home = host.files->homeDirectoryForCurrentUser();
    FreedElsewhere<std::vector<ScanItem>> items;
    // A folder that changes while it is read may list a file twice.
    FreedElsewhere<NameSet> known;
    ScanProgress found;
    const auto atMark = [&](const DirectoryEntry& entry) {
        found.currentPath = displayText(entry.parentPath());
        progress(found);
    };
    HomeWalk::Files files;
    files.values = PrefetchedValues::AllocatedSizes;
    files.smallestAllocatedSize = thresholdBytes;
    HomeWalk walk(home, home, files, atMark, cancellation);
    while (const auto* file = walk.nextFile()) {
        const auto size = file->values().totalFileAllocatedSize;
        if (!size || *size < thresholdBytes)
            continue;
        auto path = file->path();
        if (!known->insert(path.native()))
            continue;
        items->emplace_back(std::move(path), displayText(file->name()), category, *size, false);
        found.itemsFound = checkedAdd(found.itemsFound, 1);
        found.bytesFound = checkedAdd(found.bytesFound, *size);
        progress(found);
    }
    keepLargest(*items, maxResults, cancellation);
    return std::move(*items);
}

} // namespace Korvane
