// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Maintenance/HeldProcesses.h"
#include "UI/Maintenance/MaintenanceWork.h"

#include <memory>

namespace Korvane {

/// A home with a sentinel in it, on a host whose programs the test plays.
struct MaintenanceHome {
    MaintenanceHome() { test.host.processes = processes; }

    TemporaryFolder folder;
    TestHost test = makeTestHost(folder);
    Sentinel sentinel{ test.host.environment.home / "Library/Preferences/org.example.sync.plist" };
    std::shared_ptr<HeldProcesses> processes = std::make_shared<HeldProcesses>();
    /// Where tasks run.
    std::shared_ptr<MaintenanceWork> work = std::make_shared<MaintenanceWork>();
};

} // namespace Korvane
