// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Platform/FileManager.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// A place where an application keeps the user's data, and the heading under which it is listed.
struct LeftoverPlace {
    std::filesystem::path url;
    std::string category;
};

/// Whether an identifier is the name of one file or folder. Anybody may have written it: one that is empty, "." or
/// "..", or holds a slash or a NUL would lead out of the folder that it is looked for in, and names no leftover.
bool isFileName(std::string_view identifier);

/// Where AppImages and Flatpaks keep data under this identifier: in the folders for data, settings, caches and state
/// of the XDG Base Directories, version 0.8. None of the folders there that belong to all applications together.
std::vector<LeftoverPlace> desktopLeftoverPlaces(
    const std::string& identifier, const Environment& environment, const FileManager& files);

} // namespace Korvane
