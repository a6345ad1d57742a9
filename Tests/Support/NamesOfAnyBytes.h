// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// Whether the volume of this folder takes names that are not UTF-8, found out with one that does not stay. Those of
/// Linux do; APFS refuses them. Throws std::system_error when the folder takes no name at all.
bool takesNamesOfAnyBytes(const std::filesystem::path& folder);

} // namespace Korvane
