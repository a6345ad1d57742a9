// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/PropertyListExercise.h"

#include "Platform/DisplayText.h"
#include "Platform/PropertyList.h"

#include <vector>

namespace Korvane {

namespace {

using Value = PropertyList::Value;
using Kind = Value::Kind;

std::string wrongInText(const Value& value, std::size_t bytes)
{
    const auto string = value.string();
    const auto data = value.data();
    if (string.has_value() != (value.kind() == Kind::String) || data.has_value() != (value.kind() == Kind::Data))
        return "a text of another kind";
    if (string && !isValidUtf8(*string))
        return "a string that is not UTF-8";
    // One byte that is no character becomes the three of U+FFFD.
    if ((string && string->size() > 3 * bytes) || (data && data->size() > bytes))
        return "a text longer than the list";
    return {};
}

std::string wrongInNumber(const Value& value)
{
    const auto kind = value.kind();
    if (value.boolean().has_value() != (kind == Kind::Boolean) || value.real().has_value() != (kind == Kind::Real))
        return "a number of another kind";
    if (value.integer() && kind != Kind::Integer)
        return "an integer of another kind";
    if (value.unsignedInteger() && kind != Kind::Integer && kind != Kind::Uid)
        return "an unsigned integer of another kind";
    if (value.date() && kind != Kind::Date)
        return "a date of another kind";
    if (kind == Kind::Integer && value.integer() && *value.integer() >= 0 && !value.unsignedInteger())
        return "an integer that has no sign, and is not told without one";
    return {};
}

std::string wrongInDictionary(const Value& dictionary, std::size_t position)
{
    const auto key = dictionary.key(position).string();
    if (key && !dictionary.value(*key))
        return "a key that is not found";
    return {};
}

std::string wrongInValue(const Value& value, std::size_t bytes)
{
    auto wrong = wrongInText(value, bytes);
    if (wrong.empty())
        wrong = wrongInNumber(value);
    if (wrong.empty() && value.size() > bytes)
        wrong = "more elements than bytes";
    return wrong;
}

} // namespace

std::string exercisePropertyList(std::string_view bytes)
{
    const auto list = PropertyList::parse(bytes);
    if (!list)
        return {};
    if (list->valueCount() > bytes.size())
        return "more values than bytes";
    constexpr std::size_t longestWalk = 256;
    std::vector<Value> values{ list->root() };
    for (std::size_t next = 0; next < values.size(); ++next) {
        const auto value = values[next];
        auto wrong = wrongInValue(value, bytes.size());
        for (std::size_t position = 0; position < value.size() && values.size() < longestWalk; ++position) {
            if (wrong.empty() && value.kind() == Kind::Dictionary)
                wrong = wrongInDictionary(value, position);
            values.push_back(value.at(position));
        }
        if (!wrong.empty())
            return wrong;
    }
    return {};
}

} // namespace Korvane
