// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

namespace Korvane {

/// How a child process ended, and what it wrote.
///
/// A process either exits with a status or dies of a signal: exactly one of the two numbers is there.
struct ChildResult {
    /// What was written into one of its pipes.
    struct Output {
        std::string text; ///< Bytes as they came, up to the limit that was set.
        bool isTruncated = false; ///< More came, and was read and dropped.
    };

    std::optional<int> exitStatus; ///< 0 to 255.
    std::optional<int> signal; ///< The number of the signal that ended it.
    Output output; ///< Standard output.
    Output errorOutput; ///< Standard error.

    /// Whether it exited of its own accord with status 0.
    bool hasSucceeded() const { return exitStatus == 0; }
};

} // namespace Korvane
