// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyListValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// The table behind a property list: each value once, and which values the containers refer to.
///
/// Positions fit 32 bits because PropertyList::largestSize bounds what is read.
struct PropertyListStore {
    using Index = std::uint32_t;
    using Kind = PropertyListValue::Kind;

    /// Which numbers hold an Integer.
    enum class Reach : std::uint8_t {
        Signed, ///< Signed 64 bits.
        Unsigned, ///< Unsigned 64 bits only.
        Wider ///< Neither.
    };

    /// One value: its number in `bits`, or `size` bytes of `text` or references from the place in `bits` on.
    struct Entry {
        Kind kind = Kind::Null;
        Reach reach = Reach::Signed;
        std::uint32_t size = 0;
        std::uint64_t bits = 0;
    };

    std::vector<Entry> entries;
    /// The values of arrays and sets; of dictionaries all keys, then all values, `size` of each.
    std::vector<Index> references;
    /// The bytes of strings (valid UTF-8) and data, one after the other.
    std::string text;
    Index root = 0;

    /// Adds values; all return the new value's place in `entries`.
    Index addNull();
    Index addBoolean(bool value);
    Index addInteger(std::uint64_t bits, Reach reach);
    Index addUid(std::uint64_t value);
    Index addReal(double value);
    /// `seconds` since 2001-01-01 00:00:00 UTC, as binary lists count.
    Index addDate(double seconds);
    Index addData(std::string_view bytes);
    /// `utf8` must be valid.
    Index addString(std::string_view utf8);
    /// A container; `size` of a Dictionary counts pairs. Its references are in place, or follow at once.
    Index addContainer(Kind kind, std::size_t size, std::size_t firstReference);

    /// The bytes of a String or a Data.
    std::string_view textOf(const Entry& entry) const { return std::string_view(text).substr(entry.bits, entry.size); }

private:
    Index add(Entry entry);
    Index addText(Kind kind, std::string_view bytes);
};

} // namespace Korvane
