// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFile.h"
#include "Core/Devices/IOSMediaFolder.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// Copies one file of a device into a folder of this computer by one run of "afcclient", as
/// IOSMediaManager::exportFile promises; the tool is there.
void exportMediaFile(const IOSMediaFile& file, const std::string& udid, const std::filesystem::path& directory,
    const std::vector<IOSMediaFolder>& listing, const Host& host, const Cancellation& cancellation);

} // namespace Korvane
