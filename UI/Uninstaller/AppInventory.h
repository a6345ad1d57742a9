// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanProgress.h"
#include "Core/Uninstalling/InstalledApp.h"
#include "Core/Uninstalling/RunningApps.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <functional>
#include <optional>
#include <vector>

namespace Korvane {

/// What one scan of the applications brought: the applications, and which of them ran at its end.
struct AppInventory {
    /// What lists the applications. Off the main thread; throws when cancelled.
    using Scan = std::function<std::vector<InstalledApp>(const Host&, const ProgressHandler&, const Cancellation&)>;

    std::vector<InstalledApp> apps;
    RunningApps running;

    /// Runs the scan; nothing when it failed or was cancelled. Off the main thread.
    static std::optional<AppInventory> of(
        const Scan& scan, const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) noexcept;
};

} // namespace Korvane
