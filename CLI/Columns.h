// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Korvane {

/// The width of a column of sizes, wide enough for "1,023.99 GB", so that lines of most reports stand in line.
constexpr std::size_t sizeWidth = 11;

/// How many characters a UTF-8 text has, each taken to fill one column.
std::size_t columns(std::string_view text);

/// The text with spaces behind it, or before it, up to a width in columns.
std::string padded(std::string_view text, std::size_t width);
std::string paddedLeft(std::string_view text, std::size_t width);

/// The text cut to a width in columns, its middle left out.
std::string elided(std::string_view text, std::size_t width);

} // namespace Korvane
