// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace Korvane {

/// One iPhone or iPad on the cable. A plain value, identified by `udid`.
///
/// The texts come from the device through its tools: they are valid UTF-8 and may hold anything else, so that they are
/// shown as displayText gives them and sent back exactly as they stand.
struct IOSDevice {
    std::string udid; ///< Exactly as "idevice_id -l" prints it.
    std::string name; ///< "iOS Device" when it cannot be read.
    std::string productVersion; ///< Of its system; "?" when it cannot be read.
    std::int64_t totalBytes = 0; ///< Capacity of its storage in bytes; 0 when unknown.
    std::int64_t freeBytes = 0; ///< Free space on it in bytes; 0 when unknown.

    /// The total without the free bytes; the nearest number of 64 bits should a device make it exceed them.
    std::int64_t usedBytes() const;

    bool operator==(const IOSDevice&) const = default;
};

} // namespace Korvane
