// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DisplayText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace Korvane {

namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

/// What stands at the beginning of some bytes: a character, or, with `isValid` false, the maximal part of one.
struct Sequence {
    std::size_t length = 1;
    bool isValid = false;
    std::uint32_t character = 0;
};

/// The lead byte's promise, after table 3-7 of the Unicode standard: how many bytes, and what the second may be.
struct Lead {
    std::size_t length;
    unsigned char secondLeast;
    unsigned char secondMost;
};

constexpr Lead leadOf(unsigned char byte)
{
    if (byte < 0x80)
        return { 1, 0, 0 };
    if (byte < 0xC2 || byte > 0xF4)
        return { 0, 0, 0 };
    if (byte < 0xE0)
        return { 2, 0x80, 0xBF };
    if (byte < 0xF0)
        return { 3, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF) };
    return { 4, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
        static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF) };
}

Sequence firstSequence(std::string_view bytes) noexcept
{
    const auto first = static_cast<unsigned char>(bytes.front());
    const Lead lead = leadOf(first);
    if (lead.length == 0)
        return {};
    if (lead.length == 1)
        return { 1, true, first };
    std::uint32_t character = first & (0x7FU >> lead.length);
    for (std::size_t index = 1; index < lead.length; ++index) {
        const unsigned char least = index == 1 ? lead.secondLeast : 0x80;
        const unsigned char most = index == 1 ? lead.secondMost : 0xBF;
        const auto byte = index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
        if (byte < least || byte > most)
            return { index, false, 0 };
        character = character << 6 | (byte & 0x3FU);
    }
    return { lead.length, true, character };
}

bool isPlain(char byte) { return byte >= 0x20 && byte < 0x7F; }

bool isNamed(std::uint32_t character)
{
    // Joiners (U+200C, U+200D) are left alone: words and pictures are spelt with them.
    constexpr std::uint32_t softHyphen = 0xAD, zeroWidthSpace = 0x200B, wordJoiner = 0x2060, byteOrderMark = 0xFEFF;
    return (character >= 0x80 && character <= 0x9F) || character == softHyphen || character == 0x61C
        || character == zeroWidthSpace || character == 0x200E || character == 0x200F
        || (character >= 0x2028 && character <= 0x202E) || character == wordJoiner
        || (character >= 0x2066 && character <= 0x2069) || character == byteOrderMark;
}

void appendShown(std::string& text, std::uint32_t character, std::string_view bytes)
{
    constexpr std::uint32_t deletion = 0x7F, pictureOfDeletion = 0x21;
    if (character < 0x20 || character == deletion) {
        text += "\xE2\x90";
        text += static_cast<char>(0x80 + (character == deletion ? pictureOfDeletion : character));
    } else if (isNamed(character)) {
        std::array<char, 16> name{};
        std::snprintf(name.data(), name.size(), "[U+%04X]", static_cast<unsigned>(character));
        text += name.data();
    } else {
        text += bytes;
    }
}

} // namespace

std::string displayText(std::string_view bytes)
{
    const auto firstSpecial = std::find_if_not(bytes.begin(), bytes.end(), isPlain);
    std::string text(bytes.begin(), firstSpecial);
    std::string_view rest = bytes.substr(text.size());
    while (!rest.empty()) {
        const Sequence sequence = firstSequence(rest);
        if (sequence.isValid)
            appendShown(text, sequence.character, rest.substr(0, sequence.length));
        else
            text += replacementCharacter;
        rest.remove_prefix(sequence.length);
    }
    return text;
}

bool isValidUtf8(std::string_view bytes) noexcept
{
    while (!bytes.empty()) {
        const Sequence sequence = firstSequence(bytes);
        if (!sequence.isValid)
            return false;
        bytes.remove_prefix(sequence.length);
    }
    return true;
}

} // namespace Korvane
