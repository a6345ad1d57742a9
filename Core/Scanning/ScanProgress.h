// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace Korvane {

/// How far a scan has come. A default record means no progress yet.
struct ScanProgress {
    std::string currentPath; ///< What is being examined, as text to be shown (UTF-8).
    std::int64_t itemsFound = 0;
    std::int64_t bytesFound = 0; ///< Total size of the items found so far.

    bool operator==(const ScanProgress&) const = default;
};

/// Receives progress while a scan runs. Called any number of times, on the scanning thread.
using ProgressHandler = std::function<void(const ScanProgress&)>;

} // namespace Korvane
