// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/AppRemovalOutcome.h"

#include "Core/Uninstalling/AppRemoval.h"

#include <algorithm>

namespace Korvane {

AppRemovalOutcome AppRemovalOutcome::of(const InstalledApp& app, const Host& host)
{
    AppRemovalOutcome outcome{ std::make_optional<RunningApps>(*host.workspace), std::nullopt };
    if (!outcome.running->contains(app))
        outcome.result = AppRemoval::remove(app, host);
    return outcome;
}

std::vector<InstalledApp> AppRemovalOutcome::whatRemains(std::vector<InstalledApp> apps, const InstalledApp& app) const
{
    if (!result)
        return apps;
    const bool isLeft = std::any_of(result->failures.begin(), result->failures.end(),
        [&](const Cleaner::Failure& failure) { return failure.url == app.url; });
    if (!isLeft)
        std::erase_if(apps, [&](const InstalledApp& other) { return other.id == app.id; });
    return apps;
}

} // namespace Korvane
