// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/HomeWalk.h"

#include "Core/Scanning/ScanExclusions.h"
#include "Platform/TrailingSlashes.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Korvane {

namespace {

bool isOrLiesIn(std::string_view path, std::string_view folder)
{
    return path.substr(0, folder.size()) == folder && (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace

HomeWalk::HomeWalk(const std::filesystem::path& root, const std::filesystem::path& home, Files files,
    MarkHandler atMark, Cancellation cancellation)
    : m_library(std::filesystem::path(withoutTrailingSlashes(home.native())) / "Library")
    , m_atMark(std::move(atMark))
    , m_cancellation(std::move(cancellation))
{
    const auto rootText = withoutTrailingSlashes(root.native());
    m_rootIsInLibrary = isOrLiesIn(rootText, m_library);
    // A relative root would lead to wherever the program happens to have been started.
    if (!root.is_absolute())
        return;
    EnumerationOptions options;
    options.hiddenFiles = HiddenFiles::Skipped;
    options.packageDescendants = PackageDescendants::Skipped;
    options.values = files.values;
    options.smallestAllocatedSize = files.smallestAllocatedSize;
    options.smallestFileSize = files.smallestFileSize;
    options.namesNeverEntered = &ScanExclusions::dependencyDirNames();
    options.pathsNeverEntered = { m_library };
    m_enumerator.emplace(rootText, std::move(options), m_cancellation);
}

const DirectoryEntry* HomeWalk::nextFile()
{
    if (!m_enumerator)
        return nullptr;
    while (const auto* entry = m_enumerator->next()) {
        visit(*entry);
        if (entry->passedOver() > 0)
            continue;
        if (isPassedOver(*entry))
            m_enumerator->skipDescendants();
        else if (entry->hasValues() && entry->type() == EntryType::RegularFile)
            return entry;
    }
    return nullptr;
}

/// Counts the entry, or all files that it stands for, and stops at each mark among them.
void HomeWalk::visit(const DirectoryEntry& entry)
{
    const auto visitedAfter = m_visited + std::max<std::int64_t>(entry.passedOver(), 1);
    for (; m_nextMark < visitedAfter; m_nextMark += entriesPerMark) {
        m_cancellation.throwIfCancelled();
        m_atMark(entry);
    }
    m_visited = visitedAfter;
}

bool HomeWalk::isPassedOver(const DirectoryEntry& entry)
{
    if (m_rootIsInLibrary)
        return true;
    // The name is compared first, so that a path is made for hardly any entry.
    if (entry.name() == "Library" && entry.path().native() == m_library)
        return true;
    return entry.type() == EntryType::Directory && ScanExclusions::shouldSkip(entry.name());
}

} // namespace Korvane
