// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

struct PropertyListStore;

/// Adds what stands in an element "integer", "real", "date" or "data" of an XML property list; none of them when the
/// text is not one. White space around the first two is passed over, and within the last.
///
/// Integers are decimal or hexadecimal ("0x"), signed, from -2^63 to 2^64-1. Reals as C writes them, and "nan",
/// "inf", "infinity" in any case, signed. Dates are ISO 8601 in exactly the form "2001-01-01T00:00:00Z".
std::optional<std::uint32_t> addXmlInteger(PropertyListStore& store, std::string_view text);
std::optional<std::uint32_t> addXmlReal(PropertyListStore& store, std::string_view text);
std::optional<std::uint32_t> addXmlDate(PropertyListStore& store, std::string_view text);
std::optional<std::uint32_t> addXmlData(PropertyListStore& store, std::string_view text);

} // namespace Korvane
