// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace Korvane {

/// The first program of this name in the folders that this user may run; empty when there is none. Any thread.
std::filesystem::path installedProgram(const std::vector<std::filesystem::path>& folders, std::string_view name);

} // namespace Korvane
