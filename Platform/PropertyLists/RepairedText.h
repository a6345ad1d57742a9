// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <bit>
#include <string>
#include <string_view>

namespace Korvane {

/// The same bytes, where each part that is not UTF-8 has become U+FFFD.
std::string repairedUtf8(std::string_view bytes);

/// UTF-16 in bytes of the given order as UTF-8; a surrogate without its other half, or half a unit, becomes U+FFFD.
std::string utf8FromUtf16(std::string_view bytes, std::endian order);

/// ISO 8859-1 as UTF-8.
std::string utf8FromLatin1(std::string_view bytes);

} // namespace Korvane
