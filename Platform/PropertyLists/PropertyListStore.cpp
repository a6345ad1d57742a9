// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/PropertyListStore.h"

#include <bit>

namespace Korvane {

PropertyListStore::Index PropertyListStore::add(Entry entry)
{
    entries.push_back(entry);
    return static_cast<Index>(entries.size() - 1);
}

PropertyListStore::Index PropertyListStore::addText(Kind kind, std::string_view bytes)
{
    const auto start = text.size();
    text += bytes;
    return add({ kind, Reach::Signed, static_cast<std::uint32_t>(bytes.size()), start });
}

PropertyListStore::Index PropertyListStore::addNull() { return add({}); }

PropertyListStore::Index PropertyListStore::addBoolean(bool value)
{
    return add({ Kind::Boolean, Reach::Signed, 0, value ? 1U : 0U });
}

PropertyListStore::Index PropertyListStore::addInteger(std::uint64_t bits, Reach reach)
{
    return add({ Kind::Integer, reach, 0, bits });
}

PropertyListStore::Index PropertyListStore::addUid(std::uint64_t value)
{
    return add({ Kind::Uid, Reach::Signed, 0, value });
}

PropertyListStore::Index PropertyListStore::addReal(double value)
{
    return add({ Kind::Real, Reach::Signed, 0, std::bit_cast<std::uint64_t>(value) });
}

PropertyListStore::Index PropertyListStore::addDate(double seconds)
{
    return add({ Kind::Date, Reach::Signed, 0, std::bit_cast<std::uint64_t>(seconds) });
}

PropertyListStore::Index PropertyListStore::addData(std::string_view bytes) { return addText(Kind::Data, bytes); }

PropertyListStore::Index PropertyListStore::addString(std::string_view utf8) { return addText(Kind::String, utf8); }

PropertyListStore::Index PropertyListStore::addContainer(Kind kind, std::size_t size, std::size_t firstReference)
{
    return add({ kind, Reach::Signed, static_cast<std::uint32_t>(size), firstReference });
}

} // namespace Korvane
