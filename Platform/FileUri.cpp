// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileUri.h"

#include <string_view>

namespace Korvane {

std::string fileUri(const std::filesystem::path& path)
{
    constexpr std::string_view kept = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char character : path.native()) {
        if (kept.find(character) != std::string_view::npos) {
            uri += character;
            continue;
        }
        const auto byte = static_cast<unsigned char>(character);
        uri += '%';
        uri += digits[byte >> 4];
        uri += digits[byte & 0xF];
    }
    return uri;
}

} // namespace Korvane
