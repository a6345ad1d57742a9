// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/TrashInfo.h"

#include <array>

namespace Korvane {
namespace {

bool isUnreserved(unsigned char byte)
{
    const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    const bool isDigit = byte >= '0' && byte <= '9';
    return isLetter || isDigit || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

} // namespace

std::string percentEncoded(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (isUnreserved(byte) || byte == '/') {
            encoded += character;
        } else {
            encoded += '%';
            encoded += digits[byte >> 4U];
            encoded += digits[byte & 0x0FU];
        }
    }
    return encoded;
}

std::string trashInfoText(std::string_view path, std::time_t deleted)
{
    std::tm local{};
    localtime_r(&deleted, &local);
    std::array<char, 64> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return "[Trash Info]\nPath=" + percentEncoded(path) + "\nDeletionDate=" + date.data() + "\n";
}

std::string shortenedName(std::string_view name, std::size_t limit)
{
    if (name.size() <= limit)
        return std::string(name);
    constexpr std::size_t longestCharacter = 4;
    const auto continues = [&](std::size_t at) { return (static_cast<unsigned char>(name[at]) & 0xC0U) == 0x80U; };
    std::size_t size = limit;
    while (size > 0 && limit - size < longestCharacter && continues(size))
        --size;
    const bool isText = size > 0 && !continues(size);
    return std::string(name.substr(0, isText ? size : limit));
}

} // namespace Korvane
