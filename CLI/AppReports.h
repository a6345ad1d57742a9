// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/InstalledApp.h"
#include "Core/Uninstalling/RunningApps.h"

#include <string>
#include <vector>

namespace Korvane {

/// The applications with their sizes, identifiers and paths, and what each has left behind.
std::string appsAsText(const std::vector<InstalledApp>& apps, const RunningApps& running);
/// `[{"path", "name", "bundleID", "sizeInBytes", "totalSize", "running", "leftovers": […]}]`, the leftovers like the
/// items of a scan; "bundleID" is null where there is none.
std::string appsAsJson(const std::vector<InstalledApp>& apps, const RunningApps& running);

/// What uninstalling would do.
std::string uninstallPlanAsText(const InstalledApp& app);
/// `{"path", "name", "bundleID", "dryRun", "items": […], "totalBytes"}`, the items like those of a scan, with "action":
/// "moveToTrash", or "uninstall" for a Flatpak, which its own tool removes.
std::string uninstallPlanAsJson(const InstalledApp& app);

} // namespace Korvane
