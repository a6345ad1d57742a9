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
    static constexpr std::chrono::duration<double> standardInterval{ 0.1 };

    explicit ProgressThrottle(std::chrono::duration<double> interval = standardInterval);

    /// Whether a report may go out now; if so, the interval starts anew.
    bool shouldEmit();

    /// The same at a given moment: true when a whole interval or more has passed since the last report.
    bool shouldEmit(std::chrono::steady_clock::time_point now);

private:
    /// A time earlier than any real one, from which an elapsed time can still be computed without overflow.
    static constexpr std::chrono::steady_clock::time_point distantPast{ std::chrono::steady_clock::duration::min()
        / 2 };

    std::chrono::steady_clock::time_point m_last = distantPast;
    std::chrono::duration<double> m_interval;
};

} // namespace Korvane
