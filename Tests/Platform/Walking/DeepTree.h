// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>

namespace Korvane {

/// Where a deep tree has folders beside the one that goes on downwards, each with one file of one byte.
enum class SideFolders { InEach, InEveryHundredth };

/// Makes a chain of folders named "d", `depth` of them, with a file "bottom" of one byte in the last; the side folders
/// with InEach come in pairs of which one is empty.
void makeDeepTree(const std::filesystem::path& root, std::size_t depth, SideFolders sideFolders);

} // namespace Korvane
