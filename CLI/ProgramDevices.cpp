// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/DeviceReports.h"
#include "CLI/Program.h"
#include "CLI/TerminalProgress.h"
#include "CLI/UsageError.h"
#include "Core/Devices/IOSBackupRemoval.h"
#include "Core/Devices/IOSBackupScanner.h"
#include "Core/Devices/IOSDeviceManager.h"
#include "Platform/DeviceToolsHint.h"
#include "Platform/DisplayText.h"
#include "Platform/TrailingSlashes.h"

#include <string>

namespace Korvane {

namespace {

using Format = CommandLine::Format;

const IOSBackup& named(const std::vector<IOSBackup>& backups, const std::string& name)
{
    const auto path = withoutTrailingSlashes(name);
    for (const auto& backup : backups) {
        if (backup.url.native() == path)
            return backup;
    }
    throw UsageError(
        "'" + displayText(std::string_view(name)) + "' is not among the backups; 'korvane-cli backups' lists them");
}

} // namespace

ExitStatus Program::listDevices(const CommandLine& line) const
{
    const auto detection = IOSDeviceManager::detect(m_host, m_cancellation);
    const auto installation = deviceToolsInstallation(m_host.environment);
    print(
        line.format == Format::Json ? devicesAsJson(detection, installation) : devicesAsText(detection, installation));
    const bool isMissing = detection.kind == IOSDeviceManager::DetectionResult::Kind::ToolsMissing;
    return isMissing ? ExitStatus::Failed : ExitStatus::Done;
}

std::vector<IOSBackup> Program::scanBackups() const
{
    TerminalProgress terminal;
    return IOSBackupScanner().scan(
        m_host, [&](const ScanProgress& progress) { terminal.show(progress); }, m_cancellation);
}

ExitStatus Program::listBackups(const CommandLine& line) const
{
    const auto backups = scanBackups();
    print(line.format == Format::Json ? backupsAsJson(backups) : backupsAsText(backups));
    return ExitStatus::Done;
}

ExitStatus Program::removeBackup(const CommandLine& line) const
{
    const bool isJson = line.format == Format::Json;
    const auto backups = scanBackups();
    const auto& backup = named(backups, line.backup);
    if (line.confirmation == CommandLine::Confirmation::Missing) {
        print(isJson ? removalPlanAsJson(backup) : removalPlanAsText(backup));
        return ExitStatus::Done;
    }
    m_cancellation.throwIfCancelled();
    const auto failure = Korvane::removeBackup(backup, m_host);
    const auto status = failure ? ExitStatus::Failed : ExitStatus::Done;
    if (isJson)
        print(removalResultAsJson(backup, failure));
    else
        tell(removalResultAsText(backup, failure), status);
    return status;
}

} // namespace Korvane
