// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/TextKeyedDictionary.h"

#include "Platform/PropertyList.h"

#include <cstddef>

namespace Korvane {

std::optional<PropertyListValue> textKeyedDictionary(const std::optional<std::string>& bytes)
{
    using Kind = PropertyListValue::Kind;
    const auto list = bytes ? PropertyList::parse(*bytes) : std::nullopt;
    if (!list || list->root().kind() != Kind::Dictionary)
        return std::nullopt;
    auto dictionary = list->root();
    for (std::size_t position = 0; position < dictionary.size(); ++position) {
        if (dictionary.key(position).kind() != Kind::String)
            return std::nullopt;
    }
    return dictionary;
}

std::optional<std::string> textIn(const PropertyListValue& dictionary, std::string_view key)
{
    const auto value = dictionary.value(key);
    return value ? value->string() : std::nullopt;
}

} // namespace Korvane
