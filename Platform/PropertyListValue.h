// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

struct PropertyListStore;

/// One value of a property list: a handle into the list's table, cheap to copy, which keeps that table alive.
///
/// A binary list may let many places refer to one value, or a value to itself. Nothing is ever expanded: following a
/// reference costs the same wherever it leads. Who walks a list from binary data must therefore bound the walk or
/// remember what was visited. The accessors give nothing of a value of another kind. Any thread.
class PropertyListValue {
public:
    /// What a value is. Null is also what fills gaps in binary lists.
    enum class Kind : std::uint8_t {
        Null,
        Boolean,
        Integer,
        Real,
        Date,
        Data,
        String,
        Uid,
        Array,
        Set,
        OrderedSet,
        Dictionary
    };
    /// A point in time; milliseconds, so that the distant past and future that lists like to name can be told.
    using Date = std::chrono::sys_time<std::chrono::milliseconds>;

    /// The value in this place of the table; made by PropertyList.
    PropertyListValue(std::shared_ptr<const PropertyListStore> store, std::uint32_t index) noexcept;

    Kind kind() const noexcept;
    std::optional<bool> boolean() const noexcept;
    /// An Integer that a signed number of 64 bits holds.
    std::optional<std::int64_t> integer() const noexcept;
    /// An Integer or a Uid that an unsigned number of 64 bits holds.
    std::optional<std::uint64_t> unsignedInteger() const noexcept;
    /// A Real; may be no number or infinite.
    std::optional<double> real() const noexcept;
    /// A Date, unless it lies beyond what milliseconds can tell.
    std::optional<Date> date() const noexcept;
    /// The bytes of a Data.
    std::optional<std::string> data() const;
    /// A String: valid UTF-8 (what was no character became U+FFFD), which may contain NUL.
    std::optional<std::string> string() const;

    /// How many values an Array or a set holds, or pairs a Dictionary; 0 of any other kind.
    std::size_t size() const noexcept;
    /// The value at `position` in stored order, of a Dictionary the value of that pair; throws std::out_of_range.
    PropertyListValue at(std::size_t position) const;
    /// The key of the pair at `position` of a Dictionary, a String in any sane list; throws std::out_of_range.
    PropertyListValue key(std::size_t position) const;
    /// The value of the first pair of a Dictionary whose key is this text. Linear in the number of pairs.
    std::optional<PropertyListValue> value(std::string_view key) const;

private:
    std::shared_ptr<const PropertyListStore> m_store;
    std::uint32_t m_index;
};

} // namespace Korvane
