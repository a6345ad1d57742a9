// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Applications/DesktopEntry.h"

#include "Platform/SmallFile.h"

#include <algorithm>
#include <map>
#include <system_error>

namespace Korvane {

namespace {

using Group = std::map<std::string_view, std::string_view>;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The keys of the group "Desktop Entry"; the first of two equal ones counts.
Group mainGroup(std::string_view text)
{
    Group group;
    bool isInGroup = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[')) {
            isInGroup = line == "[Desktop Entry]";
            continue;
        }
        const auto equals = line.find('=');
        if (isInGroup && !line.starts_with('#') && equals != std::string_view::npos)
            group.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
    return group;
}

std::string valueOf(const Group& group, std::string_view key)
{
    const auto found = group.find(key);
    if (found == group.end())
        return {};
    std::string value;
    for (std::size_t index = 0; index < found->second.size(); ++index) {
        char character = found->second[index];
        if (character != '\\' || index + 1 == found->second.size()) {
            value += character;
            continue;
        }
        character = found->second[++index];
        switch (character) {
        case 's':
            value += ' ';
            break;
        case 'n':
            value += '\n';
            break;
        case 't':
            value += '\t';
            break;
        case 'r':
            value += '\r';
            break;
        case '\\':
            value += '\\';
            break;
        default: // Left for the quoting rules of Exec.
            value += '\\';
            value += character;
        }
    }
    return value;
}

/// Takes the next argument off the front of a command line; nothing when its quotes do not close.
std::optional<std::string> takeArgument(std::string_view& line)
{
    std::string argument;
    bool isQuoted = false;
    std::size_t index = 0;
    for (; index < line.size() && (isQuoted || line[index] != ' '); ++index) {
        if (line[index] == '"')
            isQuoted = !isQuoted;
        else if (isQuoted && line[index] == '\\' && index + 1 < line.size())
            argument += line[++index];
        else
            argument += line[index];
    }
    line.remove_prefix(index);
    if (isQuoted)
        return std::nullopt;
    return argument;
}

/// Takes "%f" and its like out; "%%" is a percent sign.
std::string withoutFieldCodes(const std::string& argument)
{
    std::string text;
    for (std::size_t index = 0; index < argument.size(); ++index) {
        if (argument[index] != '%')
            text += argument[index];
        else if (++index < argument.size() && argument[index] == '%')
            text += '%';
    }
    return text;
}

std::vector<std::string> argumentsOf(std::string_view line)
{
    std::vector<std::string> arguments;
    while (true) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (line.empty())
            return arguments;
        const auto argument = takeArgument(line);
        if (!argument)
            return {};
        auto text = withoutFieldCodes(*argument);
        if (!text.empty())
            arguments.push_back(std::move(text));
    }
}

} // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text)
{
    const auto group = mainGroup(text);
    if (valueOf(group, "Type") != "Application")
        return std::nullopt;
    return DesktopEntry{ argumentsOf(valueOf(group, "Exec")), valueOf(group, "StartupWMClass"),
        valueOf(group, "Hidden") == "true", valueOf(group, "Name"), valueOf(group, "Icon") };
}

std::vector<std::string> DesktopEntry::command() const
{
    if (arguments.empty() || std::filesystem::path(arguments.front()).filename() != "env")
        return arguments;
    const auto program = std::find_if(arguments.begin() + 1, arguments.end(),
        [](const auto& argument) { return !argument.starts_with('-') && argument.find('=') == std::string::npos; });
    return { program, arguments.end() };
}

std::optional<DesktopEntry> readDesktopEntry(const std::filesystem::path& file)
{
    constexpr std::size_t largestEntry = 1 << 20;
    const auto text = contentsOfSmallFile(file, largestEntry);
    return text ? parseDesktopEntry(*text) : std::nullopt;
}

void visitDesktopEntries(const std::filesystem::path& folder, const DesktopEntryVisitor& visit)
{
    using std::filesystem::directory_options;
    constexpr int deepestFolder = 8;
    std::error_code error;
    auto entry
        = std::filesystem::recursive_directory_iterator(folder, directory_options::skip_permission_denied, error);
    for (; !error && entry != std::filesystem::recursive_directory_iterator(); entry.increment(error)) {
        if (entry.depth() >= deepestFolder)
            entry.disable_recursion_pending();
        if (entry->path().extension() != ".desktop")
            continue;
        std::string id = entry->path().lexically_relative(folder).replace_extension().native();
        std::replace(id.begin(), id.end(), '/', '-');
        visit(id, entry->path());
    }
}

} // namespace Korvane
