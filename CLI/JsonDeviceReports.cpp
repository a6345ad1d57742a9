// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/DateText.h"
#include "CLI/DeviceReports.h"
#include "CLI/JsonItems.h"
#include "CLI/JsonWriter.h"

namespace Korvane {

namespace {

using Kind = IOSDeviceManager::DetectionResult::Kind;

std::string_view nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Devices:
        return "devices";
    case Kind::ToolsMissing:
        return "toolsMissing";
    case Kind::NoDevice:
        return "noDevice";
    }
    return {};
}

void writeDevice(JsonWriter& json, const IOSDevice& device)
{
    json.beginObject();
    writeMember(json, "udid", device.udid);
    writeMember(json, "name", device.name);
    writeMember(json, "productVersion", device.productVersion);
    json.key("totalBytes");
    json.number(device.totalBytes);
    json.key("freeBytes");
    json.number(device.freeBytes);
    json.endObject();
}

void writeBackup(JsonWriter& json, const IOSBackup& backup)
{
    writePath(json, backup.url);
    writeMember(json, "deviceName", backup.deviceName);
    writeOptional(json, "productVersion", backup.productVersion);
    writeOptional(json, "lastBackupDate", backup.lastBackupDate ? universalTime(*backup.lastBackupDate) : std::nullopt);
    json.key("sizeInBytes");
    json.number(backup.sizeInBytes);
}

} // namespace

std::string devicesAsJson(const IOSDeviceManager::DetectionResult& detection, const std::string& installation)
{
    JsonWriter json;
    json.beginObject();
    writeMember(json, "result", nameOf(detection.kind));
    json.key("devices");
    json.beginArray();
    for (const auto& device : detection.devices)
        writeDevice(json, device);
    json.endArray();
    const bool isMissing = detection.kind == Kind::ToolsMissing;
    writeOptional(json, "installation", isMissing ? std::optional(installation) : std::nullopt);
    json.endObject();
    return json.take();
}

std::string backupsAsJson(const std::vector<IOSBackup>& backups)
{
    JsonWriter json;
    json.beginArray();
    for (const auto& backup : backups) {
        json.beginObject();
        writeBackup(json, backup);
        json.endObject();
    }
    json.endArray();
    return json.take();
}

std::string removalPlanAsJson(const IOSBackup& backup)
{
    JsonWriter json;
    json.beginObject();
    writeBackup(json, backup);
    json.key("dryRun");
    json.boolean(true);
    json.endObject();
    return json.take();
}

std::string removalResultAsJson(const IOSBackup& backup, const std::optional<std::string>& message)
{
    JsonWriter json;
    json.beginObject();
    writePath(json, backup.url);
    writeMember(json, "deviceName", backup.deviceName);
    writeOptional(json, "message", message);
    json.endObject();
    return json.take();
}

} // namespace Korvane
