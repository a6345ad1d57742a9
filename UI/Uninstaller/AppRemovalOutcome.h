// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"
#include "Core/Uninstalling/InstalledApp.h"
#include "Core/Uninstalling/RunningApps.h"
#include "Platform/Host.h"

#include <optional>
#include <vector>

namespace Korvane {

/// What came of the wish to remove an application.
struct AppRemovalOutcome {
    std::optional<RunningApps> running; ///< What ran just before; always there.
    std::optional<Cleaner::Result> result; ///< Nothing when the application ran, and so was left alone.

    /// Removes the application with its leftovers unless it runs. Off the main thread.
    static AppRemovalOutcome of(const InstalledApp& app, const Host& host);

    /// These applications without `app` if it was removed: what is known before they are looked for again.
    std::vector<InstalledApp> whatRemains(std::vector<InstalledApp> apps, const InstalledApp& app) const;
};

} // namespace Korvane
