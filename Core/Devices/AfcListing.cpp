// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcListing.h"

#include <algorithm>

namespace Korvane {

namespace {

std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// The name that a line stands for; empty when it stands for none.
std::string_view nameIn(std::string_view line)
{
    constexpr std::string_view promptEnd = "> ";
    line = withoutBlanks(line);
    if (const auto end = line.rfind(promptEnd); end != std::string_view::npos)
        line = withoutBlanks(line.substr(end + promptEnd.size()));
    const bool isNone
        = line == "." || line == ".." || line.starts_with("Error") || line.find(": ") != std::string_view::npos;
    if (isNone)
        return {};
    if (line.ends_with('/'))
        line.remove_suffix(1);
    return line;
}

} // namespace

std::vector<std::string> parseNames(std::string_view output)
{
    std::vector<std::string> names;
    while (!output.empty()) {
        const auto end = std::min(output.find('\n'), output.size());
        if (const auto name = nameIn(output.substr(0, end)); !name.empty())
            names.emplace_back(name);
        output.remove_prefix(std::min(end + 1, output.size()));
    }
    return names;
}

bool holdsControlCharacter(std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0U;
        // In UTF-8 the later control characters are C2 80 to C2 9F.
        if (byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next >= 0x80 && next <= 0x9F))
            return true;
    }
    return false;
}

std::vector<std::string> credibleNames(std::vector<std::string> names, const std::vector<std::string>& commands)
{
    const auto isNone = [&](const std::string& name) {
        return name.empty() || name == "." || name == ".." || holdsControlCharacter(name)
            || name.find('/') != std::string::npos
            || std::find(commands.begin(), commands.end(), name) != commands.end();
    };
    names.erase(std::remove_if(names.begin(), names.end(), isNone), names.end());
    return names;
}

bool isListedAsItself(std::string_view name)
{
    const auto names = credibleNames(parseNames(name), { "quit" });
    return names.size() == 1 && names.front() == name;
}

} // namespace Korvane
