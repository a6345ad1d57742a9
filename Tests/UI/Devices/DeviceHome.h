// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/Sentinel.h"
#include "Tests/Support/TestHost.h"
#include "Tests/Support/TestTrash.h"
#include "Tests/UI/Devices/Backups.h"
#include "Tests/UI/Devices/StandInDevices.h"
#include "UI/Devices/DeviceWork.h"

#include <QtTest>

#include <cerrno>
#include <csignal>
#include <memory>

namespace Korvane {

/// Whether a process is no more.
inline bool hasEnded(int process) { return ::kill(process, 0) != 0 && errno == ESRCH; }

/// A home with a sentinel in it, and the devices that a test plugs in.
struct DeviceHome {
    Host& host() { return test.host; }
    std::filesystem::path home() const { return test.host.environment.home; }
    std::filesystem::path backups() const { return backupsIn(home()); }

    TemporaryFolder folder;
    TestHost test = makeTestHost(folder);
    Sentinel sentinel{ test.host.environment.home / "Pictures/holiday.heic" };
    StandInDevices devices{ test.host.environment, folder / "devices" };
    std::shared_ptr<DeviceWork> work = std::make_shared<DeviceWork>();
};

} // namespace Korvane
