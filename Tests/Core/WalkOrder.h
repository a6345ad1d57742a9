// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanExclusions.h"
#include "Platform/DirectoryEnumerator.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// The entries of the walk over a home, or over another root less the library of the home, in the order in which
/// scanners meet them, with the folder of each.
struct WalkedEntry {
    std::filesystem::path path;
    std::filesystem::path parent;
};

inline std::vector<WalkedEntry> walkOrder(const std::filesystem::path& root, const std::filesystem::path& library)
{
    EnumerationOptions options;
    options.hiddenFiles = HiddenFiles::Skipped;
    options.packageDescendants = PackageDescendants::Skipped;
    options.namesNeverEntered = &ScanExclusions::dependencyDirNames();
    options.pathsNeverEntered = { library };
    DirectoryEnumerator enumerator(root, options);
    std::vector<WalkedEntry> entries;
    while (const auto* entry = enumerator.next())
        entries.push_back({ entry->path(), entry->parentPath() });
    return entries;
}

inline std::vector<WalkedEntry> walkOrder(const std::filesystem::path& home)
{
    return walkOrder(home, home / "Library");
}

} // namespace Korvane
