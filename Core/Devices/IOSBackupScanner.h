// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Core/Scanning/ScanProgress.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// Lists the backups of iPhones and iPads that the device-sync service keeps for this user. A value without parameters.
class IOSBackupScanner {
public:
    /// "Library/Application Support/MobileSync/Backup" in the user's home folder, whether it is there or not.
    static std::filesystem::path backupRoot(const Environment& environment);

    /// The folders directly in backupRoot() that are not hidden, each with what its "Info.plist" says of the device and
    /// what it occupies; largest first, equal ones in the order of the listing.
    ///
    /// A link to a folder counts as one, of the size of the link itself. A description that cannot be read, is no
    /// dictionary with text keys or is too large (16 MiB, or 256 MiB of large ones in all) gives a backup with the name
    /// of its folder alone. What cannot be measured counts as less; what goes away meanwhile may be listed with nothing
    /// in it. Reports progress on the calling thread, at most once in 0.1 s. Off the main thread. Throws
    /// CancellationError when cancelled, and nothing else.
    std::vector<IOSBackup> scan(
        const Host& host, const ProgressHandler& progress = {}, const Cancellation& cancellation = {}) const;

private:
    class Scan;
};

} // namespace Korvane
