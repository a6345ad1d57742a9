// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"

#include <cstdint>
#include <filesystem>

namespace Korvane {

/// Finds files of the same size whose first bytes have the same SHA-256 digest.
///
/// Bytes beyond the prefix are not compared: that is the price of never reading a large file whole.
class DuplicatesScanner final : public JunkScanner {
public:
    static constexpr std::int64_t defaultMinimumFileSize = 1'048'576; ///< 1 MiB.
    static constexpr std::int64_t defaultHashPrefixBytes = 4'194'304; ///< 4 MiB.

    std::int64_t minimumFileSize; ///< Smallest logical file size considered (inclusive).
    std::int64_t hashPrefixBytes; ///< How many bytes from the start of each file are hashed.
    std::filesystem::path root; ///< Where the walk starts.

    explicit DuplicatesScanner(std::filesystem::path rootFolder, std::int64_t minimumSize = defaultMinimumFileSize,
        std::int64_t prefixBytes = defaultHashPrefixBytes);

    /// Set after set, each the kept file first and then its copies, which are pre-selected. The oldest file is kept;
    /// of equally old ones the first met in the walk. Sets of larger files come first.
    std::vector<ScanItem> scan(
        const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const override;

    SharedStorageOfItems sharedStorage(
        const std::vector<ScanItem>& items, const Cancellation& cancellation) const override;
};

} // namespace Korvane
