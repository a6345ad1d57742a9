// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TrimmedText.h"

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

/// U+0009 to U+000D, U+0020, U+0085, U+00A0, U+1680, U+2000 to U+200A, U+2028, U+2029, U+202F, U+205F, U+3000.
constexpr std::array blanks{ "\t"sv, "\n"sv, "\v"sv, "\f"sv, "\r"sv, " "sv, "\xC2\x85"sv, "\xC2\xA0"sv,
    "\xE1\x9A\x80"sv, "\xE2\x80\x80"sv, "\xE2\x80\x81"sv, "\xE2\x80\x82"sv, "\xE2\x80\x83"sv, "\xE2\x80\x84"sv,
    "\xE2\x80\x85"sv, "\xE2\x80\x86"sv, "\xE2\x80\x87"sv, "\xE2\x80\x88"sv, "\xE2\x80\x89"sv, "\xE2\x80\x8A"sv,
    "\xE2\x80\xA8"sv, "\xE2\x80\xA9"sv, "\xE2\x80\xAF"sv, "\xE2\x81\x9F"sv, "\xE3\x80\x80"sv };

} // namespace

std::string_view trimmedText(std::string_view text) noexcept
{
    const auto begins = [&](std::string_view blank) { return text.starts_with(blank); };
    const auto ends = [&](std::string_view blank) { return text.ends_with(blank); };
    for (auto blank = blanks.end(); (blank = std::find_if(blanks.begin(), blanks.end(), begins)) != blanks.end();)
        text.remove_prefix(blank->size());
    for (auto blank = blanks.end(); (blank = std::find_if(blanks.begin(), blanks.end(), ends)) != blanks.end();)
        text.remove_suffix(blank->size());
    return text;
}

} // namespace Korvane
