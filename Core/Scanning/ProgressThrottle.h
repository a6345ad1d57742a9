// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>

namespace Korvane {

/// Lets a report through at most once per interval; the first call always passes.
///
/// One instance belongs to one scan and is asked from one thread at a time.
class ProgressThrottle {
public:
    /// The spacing that every scan uses.
    static constexpr std::chrono::duration<double> standardInterval { 0.1 };

    explicit ProgressThrottle(std::chrono::duration<double> interval = standardInterval);

    /// Whether a report may go out now; if so, the interval starts anew.
    bool shouldEmit();

private:
    std::chrono::steady_clock::time_point m_last; ///< The distant past until the first report.
    std::chrono::duration<double> m_interval;
};

} // namespace Korvane
