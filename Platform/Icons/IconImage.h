// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The most bytes that an image of an icon may have.
inline constexpr std::size_t largestIconImage = 4 * 1024 * 1024;
/// The first bytes of a PNG image, up to its height.
inline constexpr std::size_t pngStart = 24;

/// The width in pixels of a PNG image, by its first bytes (PNG, second edition, 5.2 and 11.2.2); nothing when these are
/// of no PNG image, or of one that is wider or higher than any icon is.
std::optional<int> pngWidth(std::string_view start);

/// The bytes of a file that is a PNG image, or a plain drawing in SVG, and no larger than an icon may be.
std::optional<std::string> iconImage(const std::filesystem::path& file);

} // namespace Korvane
