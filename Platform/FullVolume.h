// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// Whether the volume that holds `path` has no room left for this user; false when it does not tell, as those do that
/// keep nothing on a disk. What the platform could make room for does not count. Any thread.
bool isVolumeFull(const std::filesystem::path& path);

} // namespace Korvane
