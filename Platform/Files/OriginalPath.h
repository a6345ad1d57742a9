// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/ItemPlace.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// The absolute path to record for an item: as given when it is plain, else what it comes to. Throws FileError.
std::string originalPath(const ItemPlace& item);

/// The path to record for an item relative to the open folder `top`, which is above it. Throws FileError.
std::string originalPathBelow(const ItemPlace& item, int top);

/// The path of an open folder, without links; empty when it is longer than the system tells or the folder is gone.
std::filesystem::path pathOfFolder(int folder);

} // namespace Korvane
