// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TemporaryFolder.h"

#include <cstddef>
#include <filesystem>
#include <string>

namespace Korvane {

/// Where backups of devices lie in this home.
inline std::filesystem::path backupsIn(const std::filesystem::path& home)
{
    return home / "Library/Application Support/MobileSync/Backup";
}

/// Puts a backup of about so many bytes there.
inline void addBackup(const std::filesystem::path& home, const std::string& folder, const std::string& deviceName,
    std::size_t bytes = 100'000)
{
    const std::filesystem::path backup = backupsIn(home) / folder;
    writeFile(backup / "Info.plist",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Device Name</key><string>"
            + deviceName + "</string><key>Product Version</key><string>17.4.1</string><key>Last Backup Date</key>"
            + "<date>2024-03-09T12:00:00Z</date></dict></plist>\n");
    writeFile(backup / "Manifest.db", bytes);
}

} // namespace Korvane
