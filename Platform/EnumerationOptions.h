// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileError.h"
#include "Platform/FileManager.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Korvane {

/// Whether a walk goes into packages: folders that the platform shows as one file.
enum class PackageDescendants { Entered, Skipped };

/// Which values a walk reads with each entry, so that nothing is asked of the disk that nobody wants.
enum class PrefetchedValues {
    TypeOnly, ///< Type, taken from the listing wherever the file system tells it there.
    AllocatedSizes, ///< Allocated size of everything that is not a folder; of folders only the type.
    FileValues, ///< Sizes and modification date of everything that is not a folder; of folders only the type.
    AllValues, ///< Sizes and modification date of every entry.
};

/// What an error handler answers: go on with the next entry, or end the walk.
enum class OnError { Continue, Stop };

/// How a walk is done.
struct EnumerationOptions {
    HiddenFiles hiddenFiles = HiddenFiles::Included;
    PackageDescendants packageDescendants = PackageDescendants::Entered;
    PrefetchedValues values = PrefetchedValues::FileValues;

    /// Regular files known to be smaller, in allocated or in logical bytes, are passed over: those side by side come as
    /// one entry without a name (see DirectoryEntry::passedOver), so that no thread keeps anything for each of them.
    std::int64_t smallestAllocatedSize = 0;
    std::int64_t smallestFileSize = 0;

    /// Folders with one of these names are delivered and never entered. Must outlive the walk; null: none.
    const std::unordered_set<std::string>* namesNeverEntered = nullptr;

    /// Folders that are delivered and never entered, by path text as the walk makes it (root and names joined by "/").
    std::vector<std::filesystem::path> pathsNeverEntered;

    /// Called on the consumer's thread, in walk order, for each folder that cannot be read. None: go on.
    std::function<OnError(const FileError&)> errorHandler;
};

} // namespace Korvane
