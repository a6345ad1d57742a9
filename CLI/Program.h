// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/CommandLine.h"
#include "CLI/ExitStatus.h"
#include "CLI/MediaExportResult.h"
#include "Core/Cleaning/Cleaner.h"
#include "Core/Devices/IOSBackup.h"
#include "Core/Devices/IOSMediaFolder.h"
#include "Core/Scanning/ScanItem.h"
#include "Core/Uninstalling/InstalledApp.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <string>
#include <vector>

namespace Korvane {

/// Carries out command lines on a host.
class Program {
public:
    Program(Host host, Cancellation cancellation);

    /// Does what the arguments behind the program's name ask for; complaints go to standard error. Never throws.
    ExitStatus run(const std::vector<std::string>& arguments) noexcept;

private:
    ExitStatus runCommand(const CommandLine& line);
    ExitStatus runDeviceCommand(const CommandLine& line) const;
    ExitStatus clean(const CommandLine& line);
    ExitStatus listApps(const CommandLine& line) const;
    ExitStatus uninstall(const CommandLine& line) const;
    ExitStatus runTask(const CommandLine& line) const;
    ExitStatus listAgents(const CommandLine& line) const;
    ExitStatus removeAgent(const CommandLine& line) const;
    ExitStatus listDevices(const CommandLine& line) const;
    ExitStatus listBackups(const CommandLine& line) const;
    ExitStatus removeBackup(const CommandLine& line) const;
    ExitStatus listMedia(const CommandLine& line) const;
    ExitStatus exportMedia(const CommandLine& line) const;
    ExitStatus deleteMedia(const CommandLine& line) const;

    std::vector<ScanItem> scan(CleanerModule module) const;
    SharedStorageOfItems sharedStorage(CleanerModule module, const std::vector<ScanItem>& items) const;
    std::vector<InstalledApp> scanApps() const;
    std::vector<IOSBackup> scanBackups() const;
    std::vector<IOSMediaFolder> scanMedia(const CommandLine& line) const;
    MediaExportResult exportEach(const CommandLine& line, const std::filesystem::path& folder) const;
    std::vector<ScanItem> chosen(const CommandLine& line, std::vector<ScanItem> items) const;
    Cleaner::Result cleanEach(const std::vector<ScanItem>& items, CommandLine::Removal removal);

    void print(const std::string& text) const;
    void tell(const std::string& outcome, ExitStatus status) const;

    Host m_host;
    Cancellation m_cancellation;
};

} // namespace Korvane
