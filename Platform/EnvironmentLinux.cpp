// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Environment.h"

#include "Platform/SmallFile.h"
#include "Platform/TrailingSlashes.h"

#include <cstddef>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

namespace Korvane {

namespace {

/// A list of a few folders; the one that xdg-user-dirs writes has some six hundred bytes.
constexpr std::size_t largestList = std::size_t{ 64 } * 1024;

/// Takes the beginning from the text, when it begins so.
bool takeBeginning(std::string_view& text, std::string_view beginning)
{
    if (!text.starts_with(beginning))
        return false;
    text.remove_prefix(beginning.size());
    return true;
}

void skipBlanks(std::string_view& text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
}

/// What stands before the closing quote, a backslash before a character taken away.
std::string unquoted(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '\\' && i + 1 < text.size())
            ++i;
        result += text[i];
    }
    return result;
}

/// The folder that a line names for downloads, in the one form that xdg-user-dirs reads: NAME="$HOME/folder" or
/// NAME="/folder".
std::optional<std::filesystem::path> downloadsIn(std::string_view line, const std::filesystem::path& home)
{
    skipBlanks(line);
    if (!takeBeginning(line, "XDG_DOWNLOAD_DIR"))
        return std::nullopt;
    skipBlanks(line);
    if (!takeBeginning(line, "="))
        return std::nullopt;
    skipBlanks(line);
    if (!takeBeginning(line, "\""))
        return std::nullopt;
    const auto folder = unquoted(line);
    std::string_view inHome = folder;
    if (takeBeginning(inHome, "$HOME/"))
        return withoutTrailingSlashes((home / inHome).native());
    if (folder == "$HOME")
        return home;
    if (!folder.starts_with('/'))
        return std::nullopt;
    return withoutTrailingSlashes(folder);
}

} // namespace

std::filesystem::path Environment::downloads() const
{
    std::filesystem::path folder = home / "Downloads";
    std::istringstream list(contentsOfSmallFile(configHome() / "user-dirs.dirs", largestList).value_or(""));
    for (std::string line; std::getline(list, line);) {
        // Of several lines the last counts.
        if (auto chosen = downloadsIn(line, home))
            folder = *chosen;
    }
    return folder;
}

std::vector<std::filesystem::path> Environment::systemDeviceToolFolders(const std::filesystem::path& root)
{
    return { root / "bin" };
}

} // namespace Korvane
