// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Icons/IconImage.h"

#include "Platform/Icons/BigEndian.h"
#include "Platform/Icons/PlainDrawing.h"
#include "Platform/SmallFile.h"

namespace Korvane {
namespace {

bool isSvg(std::string_view text)
{
    constexpr std::size_t prologue = 4096;
    const auto start = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    return start != std::string_view::npos && text[start] == '<'
        && text.substr(0, prologue).find("<svg") != std::string_view::npos;
}

} // namespace

std::optional<int> pngWidth(std::string_view start)
{
    constexpr std::string_view signature("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    constexpr std::uint32_t widest = 4096;
    if (start.size() < pngStart || !start.starts_with(signature))
        return std::nullopt;
    const auto width = bigEndian(start.substr(16));
    const auto height = bigEndian(start.substr(20));
    if (width == 0 || width > widest || height == 0 || height > widest)
        return std::nullopt;
    return static_cast<int>(width);
}

std::optional<std::string> iconImage(const std::filesystem::path& file)
{
    auto bytes = contentsOfSmallFile(file, largestIconImage);
    if (bytes && !pngWidth(*bytes) && !(isSvg(*bytes) && isPlainDrawing(*bytes)))
        return std::nullopt;
    return bytes;
}

} // namespace Korvane
