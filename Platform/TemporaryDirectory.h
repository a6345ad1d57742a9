// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace Korvane {

/// The folder for this user's temporary files: on macOS the per-user one, elsewhere TMPDIR when that is absolute,
/// else "/tmp". Reads the process environment; start of the program only.
std::filesystem::path systemTemporaryDirectory();

/// The variable of the process environment as a path without trailing slashes; empty when unset or not absolute.
std::filesystem::path absolutePathVariable(const char* name);

} // namespace Korvane
