// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"

#include <cstdint>

namespace Korvane {

/// Finds the largest files of the home folder, outside "Library", hidden folders, packages and dependency folders.
class LargeFilesScanner final : public JunkScanner {
public:
    static constexpr std::int64_t defaultThresholdBytes = 104'857'600; ///< 100 MiB.
    static constexpr std::int64_t defaultMaxResults = 300;

    std::int64_t thresholdBytes; ///< Smallest allocated size that counts as large (inclusive).
    std::int64_t maxResults; ///< Most items returned.

    explicit LargeFilesScanner(
        std::int64_t threshold = defaultThresholdBytes, std::int64_t maximumResults = defaultMaxResults);

    /// The largest files, largest first; equal sizes in walk order. None is pre-selected.
    std::vector<ScanItem> scan(
        const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const override;
};

} // namespace Korvane
