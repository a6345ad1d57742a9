// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSBackup.h"

#include <utility>

namespace Korvane {

IOSBackup::IOSBackup(std::filesystem::path backupUrl, std::string nameOfDevice, std::optional<std::string> version,
    std::optional<Date> date, std::int64_t size)
    : id(Uuid::random())
    , url(std::move(backupUrl))
    , deviceName(std::move(nameOfDevice))
    , productVersion(std::move(version))
    , lastBackupDate(date)
    , sizeInBytes(size)
{
}

} // namespace Korvane
