// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace Korvane {

/// How large a volume is, and how much of it this user can still fill, in bytes.
struct VolumeCapacity {
    std::int64_t total = 0;
    std::int64_t availableForImportantUsage = 0;
};

/// The capacity of the volume that holds `path`; nothing when the platform does not tell. Any thread.
std::optional<VolumeCapacity> volumeCapacity(const std::filesystem::path& path);

} // namespace Korvane
