// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/ChildResult.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Korvane {

/// Another program to be run, without any shell between.
///
/// It starts in a process group of its own, with no descriptors but its three pipes, with every signal unblocked and
/// at its default, in the working directory of this process. What is left of its group when it has ended, when the run
/// is cancelled or lasts too long, or when this program exits, is ended too: SIGTERM, then SIGKILL after a grace. On
/// Linux the program itself also dies with this process, whatever that died of.
struct ChildProcess {
    std::filesystem::path program; ///< Absolute; nothing is searched.
    std::vector<std::string> arguments; ///< Those after the program's own name.
    std::string input; ///< What its standard input holds, and then ends.
    std::vector<std::pair<std::string, std::string>> variables; ///< Set over the environment of this process.
    std::size_t outputLimit = 16 * 1024 * 1024; ///< Bytes kept of each of the two outputs; the rest is dropped.
    std::optional<std::chrono::milliseconds> timeLimit; ///< How long it may run; as long as it likes without one.

    /// Runs it to its end. Both outputs are read while the input is written, so that neither side waits for ever; input
    /// that the program does not want is dropped. A process that it leaves behind holds nothing up for longer than half
    /// a second. Any thread but the main one, which this would block.
    ///
    /// Throws FileError on the program when it cannot be started, and with std::errc::timed_out once it has been ended
    /// for running too long; CancellationError once it has been ended for being cancelled. Both also four seconds after
    /// that was tried in vain: what waits for a device, or has become an administrator's, ends by itself then.
    ChildResult run(const Cancellation& cancellation) const;
};

} // namespace Korvane
