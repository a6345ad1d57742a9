// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/EnumerationOptions.h"
#include "Platform/Walking/DirectoryReader.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What a walk delivers, enters and reads: a copy of its options that readers may use for as long as they need it.
class WalkRules {
public:
    explicit WalkRules(const EnumerationOptions& options);

    bool isDelivered(const ListedEntry& entry) const noexcept { return !m_skipsHidden || !entry.isHidden; }
    /// Whether an entry whose values were read is only counted.
    bool isPassedOver(const ListedEntry& entry) const noexcept
    {
        return entry.type == EntryType::RegularFile && entry.hasValues && m_values != PrefetchedValues::TypeOnly
            && (entry.allocatedSize < m_smallestAllocatedSize || entry.fileSize < m_smallestFileSize);
    }
    bool isEntered(const WalkFolder& folder, std::string_view name, bool isPackage) const;
    DirectoryReader::Wanted wantedOf(const ListedEntry& entry) const noexcept;

private:
    bool m_skipsHidden;
    bool m_skipsPackages;
    PrefetchedValues m_values;
    std::int64_t m_smallestAllocatedSize;
    std::int64_t m_smallestFileSize;
    std::vector<std::string> m_names; // Sorted.
    std::vector<std::filesystem::path> m_paths;
    std::vector<std::string> m_lastNamesOfPaths;
};

} // namespace Korvane
