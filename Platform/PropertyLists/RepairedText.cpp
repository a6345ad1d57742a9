// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyLists/RepairedText.h"

#include "Platform/DisplayText.h"

#include <QString>

namespace Korvane {

namespace {

constexpr char32_t replacement = 0xFFFD;

void append(std::string& text, char32_t character)
{
    const auto tail = [&](unsigned shift) { text += static_cast<char>(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0U | (character >> 12U));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0U | (character >> 18U));
        tail(12);
        tail(6);
        tail(0);
    }
}

char32_t unitAt(std::string_view bytes, std::size_t position, std::endian order)
{
    const auto first = static_cast<unsigned char>(bytes[position]);
    const auto second = static_cast<unsigned char>(bytes[position + 1]);
    return order == std::endian::big ? char32_t{ first } << 8U | second : char32_t{ second } << 8U | first;
}

} // namespace

std::string repairedUtf8(std::string_view bytes)
{
    if (isValidUtf8(bytes))
        return std::string(bytes);
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())).toStdString();
}

std::string utf8FromUtf16(std::string_view bytes, std::endian order)
{
    std::string text;
    text.reserve(bytes.size());
    std::size_t position = 0;
    while (position + 1 < bytes.size()) {
        const auto unit = unitAt(bytes, position, order);
        position += 2;
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        const auto next = isHigh && position + 1 < bytes.size() ? unitAt(bytes, position, order) : 0;
        if (next >= 0xDC00 && next < 0xE000) {
            append(text, 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00));
            position += 2;
        } else {
            append(text, unit >= 0xD800 && unit < 0xE000 ? replacement : unit);
        }
    }
    if (position < bytes.size())
        append(text, replacement);
    return text;
}

std::string utf8FromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        append(text, static_cast<unsigned char>(byte));
    return text;
}

} // namespace Korvane
