// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Base64.h"

#include <cstddef>
#include <cstdint>

namespace Korvane {

std::string base64(std::string_view bytes)
{
    static constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const auto group = bytes.substr(i, 3);
        std::uint32_t bits = 0;
        for (std::size_t j = 0; j < 3; ++j)
            bits = (bits << 8U) | (j < group.size() ? static_cast<unsigned char>(group[j]) : 0U);
        for (std::size_t j = 0; j < 4; ++j)
            text += j <= group.size() ? alphabet[(bits >> (18U - 6U * j)) & 0x3FU] : '=';
    }
    return text;
}

} // namespace Korvane
