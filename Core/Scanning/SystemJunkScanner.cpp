// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SystemJunkScanner.h"

#include "Core/Scanning/CacheSelection.h"
#include "Core/Scanning/CancellableSort.h"
#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/JunkLocation.h"
#include "Core/Scanning/LastPathComponent.h"
#include "Core/Scanning/SharedTemporaryFolder.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/FreedElsewhere.h"

#include <chrono>
#include <string>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

using Expansion = JunkLocation::Expansion;
using Provider = JunkLocation::Provider;

constexpr const char* xcodeIdentifier = "com.apple.dt.Xcode";

std::unordered_set<std::string> runningBundleIDs(const Workspace& workspace)
{
    std::unordered_set<std::string> identifiers;
    for (auto& application : workspace.runningApplications()) {
        if (application.bundleIdentifier)
            identifiers.insert(std::move(*application.bundleIdentifier));
    }
    return identifiers;
}

/// One scan: what has been found so far, and how it is reported.
class Scan {
public:
    Scan(const Host& host, const ProgressHandler& progress, const Cancellation& cancellation)
        : m_host(host)
        , m_progress(progress)
        , m_cancellation(cancellation)
        , m_runningBundleIDs(runningBundleIDs(*host.workspace))
        , m_xcodeRunning(m_runningBundleIDs.count(xcodeIdentifier) != 0)
    {
    }

    std::vector<ScanItem> run()
    {
        m_locations = junkLocations(m_host);
        for (const auto& location : m_locations) {
            m_cancellation.throwIfCancelled();
            if (m_host.files->fileExists(location.url))
                scanLocation(location);
        }
        cancellableStableSort(*m_items, m_cancellation,
            [](const ScanItem& left, const ScanItem& right) { return left.sizeInBytes > right.sizeInBytes; });
        return std::move(*m_items);
    }

private:
    void scanLocation(const JunkLocation& location)
    {
        switch (location.expansion) {
        case Expansion::WholeFolder:
            addIfNotEmpty(location.url, location, false);
            return;
        case Expansion::EachChild:
            scanEachChild(location);
            return;
        case Expansion::EachUnusedChild:
            scanSharedFolder(location);
            return;
        }
    }

    void scanEachChild(const JunkLocation& location)
    {
        const auto others = placesBeside(location);
        FreedElsewhere children(visibleChildren(location.url));
        for (const auto& child : *children) {
            m_cancellation.throwIfCancelled();
            // What holds a place of its own is not offered as a cache, nor is that place listed twice.
            if (location.provider == Provider::Host && others.isOrContainsPlace(child))
                continue;
            addIfNotEmpty(child, location, isSelectable(child, location));
        }
    }

    /// What is the user's own, and all places but this one.
    PlaceOverlap placesBeside(const JunkLocation& location) const
    {
        PlaceOverlap others = placesOfTheUser(m_host);
        for (const auto& other : m_locations) {
            if (&other != &location)
                others.add(other.url);
        }
        return others;
    }

    void scanSharedFolder(const JunkLocation& location)
    {
        const SharedTemporaryFolder shared(placesBeside(location), std::chrono::system_clock::now());
        FreedElsewhere children(visibleChildren(location.url));
        for (const auto& child : *children) {
            m_cancellation.throwIfCancelled();
            if (shared.isUnused(child, m_cancellation))
                addIfNotEmpty(child, location, false);
        }
    }

    std::vector<std::filesystem::path> visibleChildren(const std::filesystem::path& folder) const
    {
        try {
            return m_host.files->contentsOfDirectory(folder, HiddenFiles::Skipped, m_cancellation);
        } catch (const FileError&) {
            return {};
        }
    }

    bool isSelectable(const std::filesystem::path& child, const JunkLocation& location) const
    {
        if (location.category == JunkCategory::xcodeJunk)
            return !m_xcodeRunning;
        if (location.category != JunkCategory::userCaches)
            return true;
        const auto folder = lastPathComponent(child);
        if (location.provider == Provider::Host && CacheSelection::isNeededByDesktop(folder))
            return false;
        return CacheSelection::isSafeToAutoSelect(folder, m_runningBundleIDs);
    }

    void addIfNotEmpty(const std::filesystem::path& url, const JunkLocation& location, bool selectableByDefault)
    {
        m_found.currentPath = displayText(url);
        m_progress(m_found);
        const auto size = FileSizeCalculator::totalSize(url, m_cancellation);
        if (size < 1)
            return;
        m_items->emplace_back(url, std::nullopt, std::string(location.category), size, selectableByDefault);
        m_found.itemsFound = checkedAdd(m_found.itemsFound, 1);
        m_found.bytesFound = checkedAdd(m_found.bytesFound, size);
        m_progress(m_found);
    }

    const Host& m_host;
    const ProgressHandler& m_progress;
    const Cancellation& m_cancellation;
    std::unordered_set<std::string> m_runningBundleIDs;
    bool m_xcodeRunning;
    std::vector<JunkLocation> m_locations;
    ScanProgress m_found;
    FreedElsewhere<std::vector<ScanItem>> m_items;
};

} // namespace

std::vector<ScanItem> SystemJunkScanner::scan(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    return Scan(host, progress, cancellation).run();
}

} // namespace Korvane
