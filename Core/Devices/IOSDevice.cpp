// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSDevice.h"

#include <limits>

namespace Korvane {

std::int64_t IOSDevice::usedBytes() const
{
    using Limits = std::numeric_limits<std::int64_t>;
    if (freeBytes < 0 && totalBytes > Limits::max() + freeBytes)
        return Limits::max();
    if (freeBytes > 0 && totalBytes < Limits::min() + freeBytes)
        return Limits::min();
    return totalBytes - freeBytes;
}

} // namespace Korvane
