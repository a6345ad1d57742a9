// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ProgressThrottle.h"
#include "Core/Scanning/ScanProgress.h"

#include <cstdint>
#include <filesystem>

namespace Korvane {

/// Counts what one scan finds, and tells how far it has come at most once in 0.1 s. One thread; the handler outlives
/// it.
class FindingsReport {
public:
    /// An empty handler is told nothing.
    explicit FindingsReport(const ProgressHandler& progress);

    /// Counts one more finding of so many bytes; a sum that does not fit stops the program.
    void count(std::int64_t bytes);
    /// Tells the handler that this is being examined, unless it was told something a moment ago.
    void tell(const std::filesystem::path& url);

private:
    const ProgressHandler& m_progress;
    ProgressThrottle m_throttle;
    ScanProgress m_found;
};

} // namespace Korvane
