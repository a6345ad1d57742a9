// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Background/UserUnits.h"

#include "Platform/Background/FolderNames.h"
#include "Platform/DisplayText.h"
#include "Platform/TrimmedText.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

/// The kinds that can be enabled, and the folders of links by which they are (systemd.unit(5)).
constexpr std::array unitKinds{ ".service"sv, ".socket"sv, ".timer"sv, ".path"sv, ".target"sv, ".mount"sv,
    ".automount"sv, ".swap"sv, ".slice"sv };
constexpr std::array linkFolders{ ".wants"sv, ".requires"sv, ".upholds"sv };

template <typename Endings> bool endsWithOneOf(std::string_view name, const Endings& endings)
{
    return std::any_of(endings.begin(), endings.end(),
        [&](std::string_view ending) { return name.size() > ending.size() && name.ends_with(ending); });
}

bool isUnitCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
        || (character >= '0' && character <= '9') || ":-_.\\@"sv.find(character) != std::string_view::npos;
}

/// Whether systemd takes this name for a unit, and nobody takes it for an option.
bool isUnitName(std::string_view name)
{
    constexpr std::size_t longest = 255;
    return name.size() <= longest && !name.starts_with('-') && endsWithOneOf(name, unitKinds)
        && std::all_of(name.begin(), name.end(), isUnitCharacter);
}

/// "name@.service" of "name@instance.service"; empty for what is no instance.
std::string templateOf(const std::string& name)
{
    const auto at = name.find('@');
    const auto dot = name.rfind('.');
    if (at == std::string::npos || dot == std::string::npos || dot <= at + 1)
        return {};
    return name.substr(0, at + 1) + name.substr(dot);
}

/// Takes a line off a unit's text (systemd.syntax(7)): one that ends with a backslash goes on in the next, comments
/// between them left out.
std::string takeLine(std::string_view& text)
{
    std::string whole;
    while (!text.empty()) {
        const auto end = text.find('\n');
        auto line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const auto content = trimmedText(line);
        if (content.starts_with('#') || content.starts_with(';'))
            continue;
        whole += line;
        const auto backslashes = line.size() - (line.find_last_not_of('\\') + 1);
        if (backslashes % 2 == 0)
            break;
        whole.back() = ' ';
    }
    return whole;
}

/// The first word of a command line, in quotes or not.
std::string firstWord(std::string_view line)
{
    line = trimmedText(line);
    const char quote = line.empty() ? '\0' : line.front();
    if (quote == '"' || quote == '\'')
        return std::string(line.substr(1, line.find(quote, 1) - 1));
    return std::string(line.substr(0, line.find_first_of(" \t")));
}

} // namespace

std::optional<std::string> programOfUnit(std::string_view text)
{
    constexpr auto key = "ExecStart"sv;
    bool isInGroup = false;
    std::optional<std::string> program;
    while (!text.empty()) {
        const auto whole = takeLine(text);
        const auto line = trimmedText(whole);
        if (line.starts_with('['))
            isInGroup = line == "[Service]";
        const auto equals = line.find('=');
        if (!isInGroup || equals == std::string_view::npos || trimmedText(line.substr(0, equals)) != key)
            continue;
        auto command = trimmedText(line.substr(equals + 1));
        // Nothing takes back all that was stated before.
        if (command.empty())
            program.reset();
        command.remove_prefix(std::min(command.find_first_not_of("@-:+!"), command.size()));
        if (auto word = firstWord(command); !program && !word.empty())
            program = displayText(std::string_view(word));
    }
    return program;
}

UserUnits::UserUnits(std::vector<std::filesystem::path> folders, const Cancellation& cancellation)
    : m_folders(std::move(folders))
    , m_cancellation(cancellation)
{
    for (const auto& folder : m_folders)
        readLinks(folder);
}

void UserUnits::readLinks(const std::filesystem::path& folder)
{
    for (const auto& name : namesInFolder(folder, m_cancellation)) {
        if (endsWithOneOf(name, linkFolders)) {
            for (const auto& enabled : namesInFolder(folder / name, m_cancellation))
                addEnabled(enabled);
            continue;
        }
        // An alias: a link of another name than what it leads to, wherever that lies.
        std::error_code error;
        const auto target = std::filesystem::read_symlink(folder / name, error);
        if (!error && target.filename() != name)
            addEnabled(target.filename().native());
    }
}

void UserUnits::addEnabled(const std::string& name)
{
    // What is masked leads to a device.
    if (!isUnitName(name))
        return;
    m_enabledNames.insert(name);
    m_enabledTemplates.insert(templateOf(name));
}

std::vector<std::filesystem::path> UserUnits::enabled() const
{
    std::vector<std::filesystem::path> units;
    std::set<std::string> seen;
    for (const auto& folder : m_folders) {
        for (const auto& name : namesInFolder(folder, m_cancellation)) {
            m_cancellation.throwIfCancelled();
            std::error_code error;
            // What is masked is a link to a device or an empty file (systemd.unit(5)), what is a folder no unit.
            const bool isFile = std::filesystem::is_regular_file(folder / name, error)
                && std::filesystem::file_size(folder / name, error) != 0;
            const bool isEnabled = m_enabledNames.contains(name) || m_enabledTemplates.contains(name);
            if (isUnitName(name) && seen.insert(name).second && isFile && isEnabled)
                units.push_back(folder / name);
        }
    }
    return units;
}

std::vector<std::string> UserUnits::runningNames(const std::filesystem::path& unit) const
{
    const auto name = unit.filename().native();
    std::vector<std::string> names;
    for (const auto& enabled : m_enabledNames) {
        if (templateOf(enabled) == name)
            names.push_back(enabled);
    }
    return names.empty() ? std::vector<std::string>{ name } : names;
}

} // namespace Korvane
