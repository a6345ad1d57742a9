// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/RunningApps.h"

#include <utility>

namespace Korvane {

RunningApps::RunningApps(const Workspace& workspace)
{
    for (auto& application : workspace.runningApplications()) {
        if (application.bundleIdentifier)
            m_identifiers.insert(std::move(*application.bundleIdentifier));
    }
}

bool RunningApps::contains(const InstalledApp& app) const
{
    return app.bundleID && m_identifiers.count(*app.bundleID) != 0;
}

} // namespace Korvane
