// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/FileManager.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// What lies directly in a folder and is not hidden, as full paths in the order of the listing; nothing when the folder
/// cannot be listed, as most users lack some of the folders that are looked at. Throws CancellationError.
std::vector<std::filesystem::path> visibleChildren(
    const std::filesystem::path& folder, const FileManager& files, const Cancellation& cancellation = {});

} // namespace Korvane
