// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"
#include "Platform/FileManager.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// Removes what the user selected; the one place where the generic modules do.
class Cleaner {
public:
    Cleaner() = delete;

    /// One item that could not be removed.
    struct Failure {
        std::filesystem::path url;
        std::string message; ///< The platform error's localised description, unaltered, UTF-8.

        bool operator==(const Failure&) const = default;
    };

    /// The outcome of one run.
    struct Result {
        std::int64_t cleanedBytes = 0; ///< Sum of the scanned sizes of the items that were removed.
        std::int64_t cleanedCount = 0;
        std::vector<Failure> failures; ///< In the order of the items given.

        bool operator==(const Result&) const = default;
    };

    /// What cleaning does to one item.
    enum class Action { EmptyTrash, Delete, MoveToTrash };

    /// What `clean` would do with `url`: a Trash folder is emptied and what lies in one is deleted, whatever
    /// `moveToTrash` says. Compares plain path texts; touches nothing.
    static Action action(const std::filesystem::path& url, bool moveToTrash, const FileManager& files);

    /// Moves each item to the Trash, or deletes it; a Trash folder is emptied and what lies in one is deleted,
    /// whichever is asked. Never stops early and never throws for an item: failures are in the result.
    /// Off the main thread; cannot be cancelled.
    static Result clean(const std::vector<ScanItem>& items, bool moveToTrash, FileManager& files);
};

} // namespace Korvane
