// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"
#include "Platform/Host.h"

#include <optional>
#include <string>

namespace Korvane {

/// Moves the folder of a backup to the Trash; a link in its place goes itself, never what it leads to.
///
/// Refused: what does not lie directly in IOSBackupScanner::backupRoot(), and what is no folder any more. What went
/// wrong, in human words; nothing when it is in the Trash. On failure the backup is where it was. Off the main thread;
/// never throws for the backup.
std::optional<std::string> removeBackup(const IOSBackup& backup, const Host& host);

} // namespace Korvane
