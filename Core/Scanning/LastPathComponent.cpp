// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/LastPathComponent.h"

#include "Platform/DisplayText.h"

#include <string_view>

namespace Korvane {

std::string lastPathComponent(const std::filesystem::path& path)
{
    const std::string& text = path.native();
    const auto lastByte = text.find_last_not_of('/');
    if (lastByte == std::string::npos)
        return text.empty() ? std::string() : std::string("/");
    const auto slash = text.rfind('/', lastByte);
    const auto first = slash == std::string::npos ? 0 : slash + 1;
    return text.substr(first, lastByte + 1 - first);
}

std::string displayName(const std::filesystem::path& path)
{
    return displayText(std::string_view(lastPathComponent(path)));
}

} // namespace Korvane
