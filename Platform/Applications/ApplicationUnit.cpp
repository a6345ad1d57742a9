// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/ApplicationUnit.h"

namespace Korvane {

namespace {

bool takeSuffix(std::string_view& text, std::string_view suffix)
{
    if (!text.ends_with(suffix))
        return false;
    text.remove_suffix(suffix.size());
    return true;
}

bool takePrefix(std::string_view& text, std::string_view prefix)
{
    if (!text.starts_with(prefix))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

int digitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

/// "\x2d" is the byte 0x2D, as systemd.unit(5) escapes names.
std::string unescaped(std::string_view text)
{
    std::string bytes;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool isEscape = text.substr(index, 2) == "\\x" && index + 3 < text.size();
        const int high = isEscape ? digitValue(text[index + 2]) : -1;
        const int low = isEscape ? digitValue(text[index + 3]) : -1;
        if (high < 0 || low < 0) {
            bytes += text[index];
        } else {
            bytes += static_cast<char>(high * 16 + low);
            index += 3;
        }
    }
    return bytes;
}

/// The id in what stands between "app-" and the random part: it holds no dash that is not escaped.
std::string applicationId(std::string_view name)
{
    // Flatpak leaves the dashes of an id as they are.
    if (takePrefix(name, "flatpak-"))
        return unescaped(name);
    const auto dash = name.rfind('-');
    return unescaped(dash == std::string_view::npos ? name : name.substr(dash + 1));
}

std::optional<std::string> applicationOfUnit(std::string_view unit)
{
    const bool isScope = takeSuffix(unit, ".scope");
    if (!isScope && !takeSuffix(unit, ".service"))
        return std::nullopt;
    if (takePrefix(unit, "snap."))
        return std::string(unit.substr(0, unit.find('.')));
    if (!takePrefix(unit, "app-"))
        return std::nullopt;
    if (!isScope)
        return applicationId(unit.substr(0, unit.find('@')));
    const auto random = unit.rfind('-');
    if (random == std::string_view::npos)
        return std::nullopt;
    return applicationId(unit.substr(0, random));
}

std::optional<std::string> applicationOfPath(std::string_view path)
{
    while (!path.empty()) {
        const auto slash = path.rfind('/');
        const auto unit = path.substr(slash == std::string_view::npos ? 0 : slash + 1);
        if (const auto id = applicationOfUnit(unit); id && !id->empty())
            return id;
        path = path.substr(0, slash == std::string_view::npos ? 0 : slash);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> applicationOfControlGroups(std::string_view table)
{
    while (!table.empty()) {
        const auto end = table.find('\n');
        const auto line = table.substr(0, end);
        table.remove_prefix(end == std::string_view::npos ? table.size() : end + 1);
        // "hierarchy:controllers:path", where the path may hold colons.
        const auto first = line.find(':');
        const auto second = first == std::string_view::npos ? first : line.find(':', first + 1);
        if (second == std::string_view::npos)
            continue;
        if (auto id = applicationOfPath(line.substr(second + 1)))
            return id;
    }
    return std::nullopt;
}

} // namespace Korvane
