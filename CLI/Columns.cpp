// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Columns.h"

#include <algorithm>

namespace Korvane {

namespace {

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Where the character with this number begins.
std::size_t byteOffset(std::string_view text, std::size_t character)
{
    std::size_t offset = 0;
    for (; offset < text.size(); ++offset) {
        if (continuesCharacter(text[offset]))
            continue;
        if (character-- == 0)
            break;
    }
    return offset;
}

std::string spaces(std::string_view text, std::size_t width)
{
    const auto used = columns(text);
    return std::string(used < width ? width - used : 0, ' ');
}

} // namespace

std::size_t columns(std::string_view text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !continuesCharacter(byte); }));
}

std::string padded(std::string_view text, std::size_t width) { return std::string(text) + spaces(text, width); }

std::string paddedLeft(std::string_view text, std::size_t width) { return spaces(text, width) + std::string(text); }

std::string elided(std::string_view text, std::size_t width)
{
    const auto count = columns(text);
    if (count <= width)
        return std::string(text);
    if (width == 0)
        return {};
    const auto atEnd = (width - 1) / 2;
    const auto atStart = width - 1 - atEnd;
    return std::string(text.substr(0, byteOffset(text, atStart))) + "\u2026"
        + std::string(text.substr(byteOffset(text, count - atEnd)));
}

} // namespace Korvane
