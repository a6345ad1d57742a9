// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Core/Devices/IOSDeviceManager.h"

#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// The devices on the cable with their storage, or why there is none; `installation` is what installs missing tools.
std::string devicesAsText(const IOSDeviceManager::DetectionResult& detection, const std::string& installation);
/// `{"result", "devices", "installation"}`; "result" is one of "devices", "toolsMissing", "noDevice", "installation" is
/// null unless the tools are missing, each device has "udid", "name", "productVersion", "totalBytes", "freeBytes".
std::string devicesAsJson(const IOSDeviceManager::DetectionResult& detection, const std::string& installation);

/// The backups with their sizes, devices and folders.
std::string backupsAsText(const std::vector<IOSBackup>& backups);
/// `[{"path", "deviceName", "productVersion", "lastBackupDate", "sizeInBytes"}]`; "productVersion" and
/// "lastBackupDate" (ISO 8601, universal time) are null where the backup does not state them.
std::string backupsAsJson(const std::vector<IOSBackup>& backups);

/// What removing a backup would do.
std::string removalPlanAsText(const IOSBackup& backup);
/// The members of backupsAsJson for the one, and "dryRun".
std::string removalPlanAsJson(const IOSBackup& backup);

/// What has become of a backup; without a message it is in the Trash.
std::string removalResultAsText(const IOSBackup& backup, const std::optional<std::string>& message);
/// `{"path", "deviceName", "message"}`; "message" is null for what is done.
std::string removalResultAsJson(const IOSBackup& backup, const std::optional<std::string>& message);

} // namespace Korvane
