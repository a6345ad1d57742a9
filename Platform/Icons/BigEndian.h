// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

namespace Korvane {

/// The number in the first four bytes, the most significant in front; there are that many.
inline std::uint32_t bigEndian(std::string_view bytes)
{
    std::uint32_t number = 0;
    for (const char byte : bytes.substr(0, 4))
        number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

} // namespace Korvane
