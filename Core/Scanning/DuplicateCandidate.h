// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace Korvane {

/// One file that may have copies.
struct DuplicateCandidate {
    using Timestamp = std::chrono::sys_time<std::chrono::nanoseconds>;

    std::filesystem::path url;
    std::int64_t size; ///< Logical size in bytes.
    Timestamp modified; ///< The distant past when the file has no modification date.

    DuplicateCandidate(std::filesystem::path url, std::int64_t size, std::optional<Timestamp> modificationDate);
};

/// Brings the files of one size together, the largest first and otherwise in the given order. Of the entries of one
/// size with the same path only the first stays: a folder that changes while it is read may list a file twice, and a
/// file is no copy of itself. Throws CancellationError when cancelled.
void sortBySize(std::vector<DuplicateCandidate>& candidates, const Cancellation& cancellation);

/// Puts the oldest file first; equally old ones stay in the order in which they are given. Throws CancellationError
/// when cancelled.
void sortOldestFirst(std::vector<DuplicateCandidate>& candidates, const Cancellation& cancellation);

} // namespace Korvane
