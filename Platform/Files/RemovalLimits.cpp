// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/RemovalLimits.h"

#include <algorithm>
#include <sys/resource.h>
#include <thread>

namespace Korvane {

RemovalLimits RemovalLimits::current()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        limit.rlim_cur = 64;
    const auto descriptors = static_cast<std::size_t>(std::min<rlim_t>(limit.rlim_cur, 4096));
    const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
    const bool isTight = descriptors < 256;
    // A quarter of the descriptors for the folders; past eight threads the file systems' own locks are the bound, and
    // past twenty-four waiting ones the device.
    return { isTight ? std::size_t{ 2 } : std::clamp<std::size_t>(processors, 2, 8), std::size_t{ isTight ? 2U : 24U },
        std::clamp<std::size_t>(descriptors / 4, 8, 256) };
}

} // namespace Korvane
