// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSMediaFile.h"

#include <string>
#include <vector>

namespace Korvane {

/// One folder in the camera roll of a device. A plain value, identified by `path`.
struct IOSMediaFolder {
    std::string path; ///< "/DCIM/" and the name; bytes as the device gives them.
    std::string name; ///< As listed; bytes as the device gives them.
    std::vector<IOSMediaFile> files; ///< In the order of the listing.

    bool operator==(const IOSMediaFolder&) const = default;
};

} // namespace Korvane
