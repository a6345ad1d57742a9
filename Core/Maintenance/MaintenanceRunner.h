// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/MaintenanceTask.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>

namespace Korvane {

/// Has the system carry out maintenance tasks. Keeps nothing between calls; several may run at once.
class MaintenanceRunner {
public:
    MaintenanceRunner() = delete;

    /// How many bytes are kept of what a program says; the rest is dropped. Far more than anybody reads.
    static constexpr std::size_t longestMessage = 64 * 1024;

    /// A task that ran and failed, or that the user did not allow. `what()` is the message as it is shown, UTF-8, whole
    /// up to `longestMessage`; it is empty when the program that failed said nothing.
    class RunError : public std::runtime_error {
    public:
        explicit RunError(const std::string& message);
    };

    /// Carries a task out through the system's interpreter of scripts, which asks the user for an administrator's
    /// password; where a host has none, by the host's own means. Waits as long as the user takes.
    ///
    /// Off the main thread. Throws RunError when it ended badly, FileError when it could not be started, and
    /// CancellationError.
    static void run(MaintenanceTask task, const Host& host, const Cancellation& cancellation = {});

    /// What this machine lacks for a task, in words for the one who wants it done; nothing when it can be run. Reads
    /// a few file names: any thread.
    static std::optional<std::string> missingMeans(MaintenanceTask task, const Host& host);
};

} // namespace Korvane
