// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>

namespace Korvane {

/// The name of the file or folder that `path` leads to, as bytes, whatever slashes follow it; "/" for the root.
std::string lastPathComponent(const std::filesystem::path& path);

/// The last path component as text to be shown, UTF-8.
std::string displayName(const std::filesystem::path& path);

} // namespace Korvane
