// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFile.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// What has become of the files that were to be copied from a device.
struct MediaExportResult {
    struct Failure {
        IOSMediaFile file;
        std::string message; ///< UTF-8.
    };

    std::filesystem::path folder; ///< Where those that were copied lie now.
    std::vector<IOSMediaFile> exported;
    std::vector<Failure> failures;
};

} // namespace Korvane
