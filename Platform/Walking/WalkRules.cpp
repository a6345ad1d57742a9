// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/WalkRules.h"

#include "Platform/Walking/WalkFolder.h"

#include <algorithm>
#include <functional>

namespace Korvane {

WalkRules::WalkRules(const EnumerationOptions& options)
    : m_skipsHidden(options.hiddenFiles == HiddenFiles::Skipped)
    , m_skipsPackages(options.packageDescendants == PackageDescendants::Skipped)
    , m_values(options.values)
    , m_smallestAllocatedSize(options.smallestAllocatedSize)
    , m_smallestFileSize(options.values == PrefetchedValues::AllocatedSizes ? 0 : options.smallestFileSize)
{
    if (options.namesNeverEntered)
        m_names.assign(options.namesNeverEntered->begin(), options.namesNeverEntered->end());
    std::sort(m_names.begin(), m_names.end());
    for (const auto& path : options.pathsNeverEntered) {
        m_paths.push_back(path.has_filename() ? path : path.parent_path());
        m_lastNamesOfPaths.push_back(m_paths.back().filename().native());
    }
}

bool WalkRules::isEntered(const WalkFolder& folder, std::string_view name, bool isPackage) const
{
    if (isPackage && m_skipsPackages)
        return false;
    if (std::binary_search(m_names.begin(), m_names.end(), name, std::less<>()))
        return false;
    // The whole path is made only for a folder whose name comes into question.
    for (std::size_t index = 0; index < m_paths.size(); ++index) {
        if (m_lastNamesOfPaths[index] == name && m_paths[index] == folder.childPath(name))
            return false;
    }
    return true;
}

DirectoryReader::Wanted WalkRules::wantedOf(const ListedEntry& entry) const noexcept
{
    if (m_values == PrefetchedValues::AllValues)
        return DirectoryReader::Wanted::All;
    if (m_values == PrefetchedValues::TypeOnly || entry.type == EntryType::Directory)
        return DirectoryReader::Wanted::Type;
    return m_values == PrefetchedValues::AllocatedSizes ? DirectoryReader::Wanted::AllocatedSize
                                                        : DirectoryReader::Wanted::All;
}

} // namespace Korvane
