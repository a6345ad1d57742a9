// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Korvane {

/// A file name or path as text to be shown: valid UTF-8 on one line, with bytes that are not UTF-8 marked by U+FFFD
/// and control and direction-changing characters made visible. For eyes only: never turned back into a path.
std::string displayText(std::string_view bytes);
std::string displayText(const std::filesystem::path& path);

/// Whether these bytes are well-formed UTF-8.
bool isValidUtf8(std::string_view bytes) noexcept;

} // namespace Korvane
