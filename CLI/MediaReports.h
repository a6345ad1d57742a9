// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/MediaExportResult.h"
#include "Core/Devices/IOSMediaFolder.h"

#include <string>
#include <vector>

namespace Korvane {

/// The folders of a camera roll with their files.
std::string mediaAsText(const std::vector<IOSMediaFolder>& folders);
/// `[{"path", "name", "files"}]`; each file has "path" and "name".
std::string mediaAsJson(const std::vector<IOSMediaFolder>& folders);

/// What was copied, and what failed.
std::string exportResultAsText(const MediaExportResult& result);
/// `{"folder", "exported", "failures"}`; "folder" has "path", what was exported "path", each failure "path" and
/// "message".
std::string exportResultAsJson(const MediaExportResult& result);

/// What deleting these would do.
std::string deletionPlanAsText(const std::vector<std::string>& paths);
/// `{"dryRun", "items"}`; each item has "path".
std::string deletionPlanAsJson(const std::vector<std::string>& paths);

/// What is deleted, and what is still on the device.
std::string deletionResultAsText(const std::vector<std::string>& deleted, const std::vector<std::string>& remaining);
/// `{"deleted", "remaining"}`; each item has "path".
std::string deletionResultAsJson(const std::vector<std::string>& deleted, const std::vector<std::string>& remaining);

} // namespace Korvane
