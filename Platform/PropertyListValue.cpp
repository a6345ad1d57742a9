// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyListValue.h"

#include "Platform/PropertyLists/PropertyListStore.h"

#include <bit>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Korvane {

namespace {

using Kind = PropertyListValue::Kind;
using Reach = PropertyListStore::Reach;

/// 2001-01-01 00:00:00 UTC, from which binary lists count, in seconds of the Unix epoch.
constexpr double referenceDate = 978'307'200;

} // namespace

PropertyListValue::PropertyListValue(std::shared_ptr<const PropertyListStore> store, std::uint32_t index) noexcept
    : m_store(std::move(store))
    , m_index(index)
{
}

Kind PropertyListValue::kind() const noexcept { return m_store->entries[m_index].kind; }

std::optional<bool> PropertyListValue::boolean() const noexcept
{
    if (kind() != Kind::Boolean)
        return std::nullopt;
    return m_store->entries[m_index].bits != 0;
}

std::optional<std::int64_t> PropertyListValue::integer() const noexcept
{
    const auto& entry = m_store->entries[m_index];
    if (entry.kind != Kind::Integer || entry.reach != Reach::Signed)
        return std::nullopt;
    return std::bit_cast<std::int64_t>(entry.bits);
}

std::optional<std::uint64_t> PropertyListValue::unsignedInteger() const noexcept
{
    const auto& entry = m_store->entries[m_index];
    if (entry.kind == Kind::Uid || (entry.kind == Kind::Integer && entry.reach == Reach::Unsigned))
        return entry.bits;
    const auto number = integer();
    if (!number || *number < 0)
        return std::nullopt;
    return entry.bits;
}

std::optional<double> PropertyListValue::real() const noexcept
{
    if (kind() != Kind::Real)
        return std::nullopt;
    return std::bit_cast<double>(m_store->entries[m_index].bits);
}

std::optional<PropertyListValue::Date> PropertyListValue::date() const noexcept
{
    if (kind() != Kind::Date)
        return std::nullopt;
    const double milliseconds = (std::bit_cast<double>(m_store->entries[m_index].bits) + referenceDate) * 1000;
    constexpr auto bound = static_cast<double>(std::numeric_limits<std::int64_t>::max() / 2);
    // Also false of what is no number.
    if (!(std::abs(milliseconds) < bound))
        return std::nullopt;
    return Date(std::chrono::milliseconds(std::llround(milliseconds)));
}

std::optional<std::string> PropertyListValue::data() const
{
    if (kind() != Kind::Data)
        return std::nullopt;
    return std::string(m_store->textOf(m_store->entries[m_index]));
}

std::optional<std::string> PropertyListValue::string() const
{
    if (kind() != Kind::String)
        return std::nullopt;
    return std::string(m_store->textOf(m_store->entries[m_index]));
}

std::size_t PropertyListValue::size() const noexcept
{
    switch (kind()) {
    case Kind::Array:
    case Kind::Set:
    case Kind::OrderedSet:
    case Kind::Dictionary:
        return m_store->entries[m_index].size;
    case Kind::Null:
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Real:
    case Kind::Date:
    case Kind::Data:
    case Kind::String:
    case Kind::Uid:
        break;
    }
    return 0;
}

PropertyListValue PropertyListValue::at(std::size_t position) const
{
    const auto& entry = m_store->entries[m_index];
    if (position >= size())
        throw std::out_of_range("PropertyListValue::at");
    const auto keys = entry.kind == Kind::Dictionary ? std::size_t{ entry.size } : 0;
    return { m_store, m_store->references[entry.bits + keys + position] };
}

PropertyListValue PropertyListValue::key(std::size_t position) const
{
    const auto& entry = m_store->entries[m_index];
    if (entry.kind != Kind::Dictionary || position >= entry.size)
        throw std::out_of_range("PropertyListValue::key");
    return { m_store, m_store->references[entry.bits + position] };
}

std::optional<PropertyListValue> PropertyListValue::value(std::string_view key) const
{
    if (kind() != Kind::Dictionary)
        return std::nullopt;
    const auto& dictionary = m_store->entries[m_index];
    for (std::size_t position = 0; position < dictionary.size; ++position) {
        const auto& entry = m_store->entries[m_store->references[dictionary.bits + position]];
        if (entry.kind == Kind::String && m_store->textOf(entry) == key)
            return at(position);
    }
    return std::nullopt;
}

} // namespace Korvane
