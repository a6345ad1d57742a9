// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/LowerCase.h"

#include <algorithm>

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/stringpiece.h>

namespace Korvane {

namespace {

bool isAscii(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) >= 0x80U; });
}

std::string lowercasedAscii(std::string_view text)
{
    std::string lower(text);
    for (auto& byte : lower) {
        if (byte >= 'A' && byte <= 'Z')
            byte = static_cast<char>(byte - 'A' + 'a');
    }
    return lower;
}

} // namespace

std::string lowercased(std::string_view text)
{
    if (isAscii(text))
        return lowercasedAscii(text);
    std::string lower;
    UErrorCode error = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&lower);
    icu::CaseMap::utf8ToLower(
        "", 0, icu::StringPiece(text.data(), static_cast<int32_t>(text.size())), sink, nullptr, error);
    return U_SUCCESS(error) ? lower : lowercasedAscii(text);
}

} // namespace Korvane
