// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Localized.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Korvane {
namespace {

constexpr int uncounted = -1;
constexpr auto firstStrongIsolate = "\u2068";
constexpr auto popDirectionalIsolate = "\u2069";

MessageCatalogue& messageCatalogue()
{
    static MessageCatalogue catalogue;
    return catalogue;
}

TextDirection& textDirection()
{
    static TextDirection direction = TextDirection::leftToRight;
    return direction;
}

std::string isolated(const std::string& argument)
{
    if (textDirection() == TextDirection::leftToRight)
        return argument;
    return firstStrongIsolate + argument + popDirectionalIsolate;
}

} // namespace

void setMessageCatalogue(MessageCatalogue catalogue, TextDirection direction)
{
    messageCatalogue() = std::move(catalogue);
    textDirection() = direction;
}

std::string localized(const char* context, const char* key)
{
    const MessageCatalogue& catalogue = messageCatalogue();
    return catalogue ? catalogue(context, key, nullptr, uncounted) : std::string(key);
}

std::string localized(const char* context, const char* key, const char* note, int count)
{
    if (const MessageCatalogue& catalogue = messageCatalogue())
        return catalogue(context, key, note, count);
    std::string text(key);
    if (const std::size_t place = text.find("%n"); place != std::string::npos)
        text.replace(place, 2, std::to_string(count));
    return text;
}

int pluralCount(std::int64_t count)
{
    return static_cast<int>(std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max()));
}

std::string filledIn(const std::string& text, std::initializer_list<std::string> arguments)
{
    std::string filled;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isPlace = text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
        const std::size_t number = isPlace ? static_cast<std::size_t>(text[at + 1] - '1') : arguments.size();
        if (number < arguments.size()) {
            filled += isolated(arguments.begin()[number]);
            ++at;
        } else {
            filled += text[at];
        }
    }
    return filled;
}

} // namespace Korvane
