// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Columns.h"
#include "CLI/DateText.h"
#include "CLI/DeviceReports.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

#include <algorithm>
#include <string_view>

namespace Korvane {

namespace {

/// Anybody may have written a name or a version: a long one is cut, so that it does not push away what stands behind
/// it.
constexpr std::size_t widestName = 48;
constexpr std::size_t widestVersion = 24;
constexpr std::size_t widestUdid = 120;

std::string shown(std::string_view text, std::size_t width) { return elided(displayText(text), width); }

std::string shownName(const IOSBackup& backup) { return shown(backup.deviceName, widestName); }

std::string deviceLines(const IOSDevice& device)
{
    auto text = shown(device.name, widestName) + "  iOS " + shown(device.productVersion, widestVersion);
    if (device.totalBytes > 0)
        text += "  " + formattedBytes(device.usedBytes()) + " used of " + formattedBytes(device.totalBytes) + ", "
            + formattedBytes(device.freeBytes) + " free";
    return text + "\n  " + shown(device.udid, widestUdid) + "\n";
}

/// What is known of a backup besides its name and size.
std::string remarks(const IOSBackup& backup)
{
    std::string text;
    if (backup.productVersion)
        text += "  iOS " + shown(*backup.productVersion, widestVersion);
    const auto day = backup.lastBackupDate ? localDay(*backup.lastBackupDate) : std::nullopt;
    return day ? text + "  last backup " + *day : text;
}

std::string countOfBackups(std::size_t count) { return std::to_string(count) + (count == 1 ? " backup" : " backups"); }

} // namespace

std::string devicesAsText(const IOSDeviceManager::DetectionResult& detection, const std::string& installation)
{
    using Kind = IOSDeviceManager::DetectionResult::Kind;
    switch (detection.kind) {
    case Kind::ToolsMissing:
        return "Device tools not installed. Install libimobiledevice to talk to iPhones and iPads:\n" + installation
            + "\n";
    case Kind::NoDevice:
        return "No device connected. Connect an iPhone or iPad with a cable and tap Trust on the device.\n";
    case Kind::Devices:
        break;
    }
    std::string text;
    for (const auto& device : detection.devices)
        text += deviceLines(device);
    return text;
}

std::string backupsAsText(const std::vector<IOSBackup>& backups)
{
    if (backups.empty())
        return "No backups found.\n";
    std::size_t width = 0;
    for (const auto& backup : backups)
        width = std::max(width, columns(shownName(backup)));
    std::string text;
    std::int64_t total = 0;
    for (const auto& backup : backups) {
        const auto known = remarks(backup);
        text += paddedLeft(formattedBytes(backup.sizeInBytes), sizeWidth) + "  "
            + (known.empty() ? shownName(backup) : padded(shownName(backup), width) + known) + "\n"
            + std::string(sizeWidth + 2, ' ') + displayText(backup.url) + "\n";
        total = checkedAdd(total, backup.sizeInBytes);
    }
    return text + "\nTotal: " + countOfBackups(backups.size()) + ", " + formattedBytes(total) + "\n";
}

std::string removalPlanAsText(const IOSBackup& backup)
{
    return "Would be moved to the Trash:\n  " + displayText(backup.url) + "\n\nThe backup of " + shownName(backup)
        + ", " + formattedBytes(backup.sizeInBytes)
        + ". You won't be able to restore this device from this backup\nafterwards. Nothing has been changed; --yes "
          "does it.\n";
}

std::string removalResultAsText(const IOSBackup& backup, const std::optional<std::string>& message)
{
    return displayText(backup.url) + ": "
        + (message ? "not moved to the Trash: " + displayText(std::string_view(*message)) : "moved to the Trash");
}

} // namespace Korvane
