// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/UI/Scan/HeldScan.h"
#include "UI/Uninstaller/AppInventory.h"

#include <utility>
#include <vector>

namespace Korvane {

/// An inventory that finds these at once.
inline AppInventory::Scan finding(std::vector<InstalledApp> apps)
{
    return [apps = std::move(apps)](const Host&, const ProgressHandler&, const Cancellation&) { return apps; };
}

/// An inventory whose every scan reports once, tells that it has begun, and waits until the test lets it go on.
inline AppInventory::Scan holdingApps(HeldScan& held, std::vector<InstalledApp> apps)
{
    return [&held, apps = std::move(apps)](
               const Host&, const ProgressHandler& progress, const Cancellation& cancellation) {
        progress({ "/Applications/First.app", 1, 5 });
        held.begun.release();
        held.mayEnd.acquire();
        cancellation.throwIfCancelled();
        return apps;
    };
}

} // namespace Korvane
