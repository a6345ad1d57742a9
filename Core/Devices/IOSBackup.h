// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Uuid.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace Korvane {

/// One backup of an iPhone or iPad that lies on this computer. A plain value; compared member by member.
struct IOSBackup {
    /// A point in time as property lists state it: it may lie farther away than any calendar reaches.
    using Date = std::chrono::sys_time<std::chrono::milliseconds>;

    Uuid id; ///< Fresh for every construction: two scans of one backup give two values.
    std::filesystem::path url; ///< Absolute location of its folder.
    std::string deviceName; ///< Valid UTF-8, as the backup states it; else the folder's name as displayText gives it.
    std::optional<std::string> productVersion; ///< Of the device's system, valid UTF-8, as the backup states it.
    std::optional<Date> lastBackupDate;
    std::int64_t sizeInBytes = 0; ///< Allocated bytes of the folder tree.

    /// Makes a backup with an identity of its own.
    IOSBackup(std::filesystem::path url, std::string deviceName, std::optional<std::string> productVersion,
        std::optional<Date> lastBackupDate, std::int64_t sizeInBytes);

    bool operator==(const IOSBackup&) const = default;
};

} // namespace Korvane

/// Of the identity alone, which no two backups share.
template <> struct std::hash<Korvane::IOSBackup> {
    std::size_t operator()(const Korvane::IOSBackup& backup) const noexcept
    {
        return std::hash<Korvane::Uuid>()(backup.id);
    }
};
