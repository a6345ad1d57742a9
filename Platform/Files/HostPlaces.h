// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// Caches that this host keeps besides "Library/Caches" in the home folder.
std::vector<std::filesystem::path> hostCacheDirectories(const Environment& environment);

} // namespace Korvane
