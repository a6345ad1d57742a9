// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Core/Devices/IOSDevice.h"
#include "Core/Devices/IOSMediaFile.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Korvane::DeviceTexts {

/// The name of a device, a backup, a folder or a file, to be shown; cut where it is longer than anybody reads.
QString name(std::string_view bytes);
/// What went wrong, or has to be done, as it is shown; cut likewise.
QString message(const QString& text);
/// A number of bytes.
QString size(std::int64_t bytes);
/// "iOS " and the version of a device's system.
QString version(std::string_view productVersion);
/// The used part of a device's storage, from 0 to 1; 0 where the capacity is unknown.
double usedFraction(const IOSDevice& device);
/// How much of a device's storage is used, of how much, and how much is free; empty where the capacity is unknown.
QString storage(const IOSDevice& device);
/// The second line of a backup: the version of the system and the day of the last backup, as far as they are known.
QString detail(const IOSBackup& backup);
/// How many files a folder has.
QString files(std::size_t count);
/// The name of the symbol of a photo, or of a video.
QString symbol(const IOSMediaFile& file);

} // namespace Korvane::DeviceTexts
