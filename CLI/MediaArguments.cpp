// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/MediaArguments.h"

#include "CLI/UsageError.h"
#include "Platform/DisplayText.h"

#include <iterator>
#include <unordered_set>

namespace Korvane {

namespace {

using Command = CommandLine::Command;

constexpr std::string_view folderOption = "--to";
constexpr std::string_view folderAssignment = "--to=";

std::string quoted(const std::string& argument) { return "'" + displayText(std::string_view(argument)) + "'"; }

/// Where the first argument behind "media" stands that is neither an option nor the folder of one.
std::size_t positionOfAction(const std::vector<std::string>& arguments)
{
    for (std::size_t position = 1; position < arguments.size(); ++position) {
        if (arguments[position] == folderOption)
            ++position;
        else if (!arguments[position].starts_with('-'))
            return position;
    }
    throw UsageError("an action is missing; one of: list, export, delete");
}

Command commandOf(const std::string& action)
{
    if (action == "list")
        return Command::ListMedia;
    if (action == "export")
        return Command::ExportMedia;
    if (action == "delete")
        return Command::DeleteMedia;
    throw UsageError("unknown action " + quoted(action) + "; one of: list, export, delete");
}

void setFolder(CommandLine& line, const std::string& folder)
{
    if (line.command != Command::ExportMedia)
        throw UsageError("option '--to' belongs to the command 'media export' only");
    if (folder.empty() || line.exportFolder)
        throw UsageError("option '--to' needs one folder");
    line.exportFolder = folder;
}

void readOption(const std::string& option, CommandLine& line)
{
    if (option == "--json")
        line.format = CommandLine::Format::Json;
    else if (option.starts_with(folderAssignment))
        setFolder(line, option.substr(folderAssignment.size()));
    else if (option != "--yes")
        throw UsageError("unknown option " + quoted(option) + "; --help lists the options there are");
    else if (line.command != Command::DeleteMedia)
        throw UsageError("option '--yes' belongs to the command 'media delete' only");
    else
        line.confirmation = CommandLine::Confirmation::Given;
}

/// What is no option: the device, which is never without a name, and what is wanted of it.
void readSubjects(const std::vector<std::string>& subjects, CommandLine& line)
{
    if (subjects.empty() || subjects.front().empty())
        throw UsageError("the identifier of a device is missing; 'korvane-cli devices' shows it");
    line.device = subjects.front();
    std::unordered_set<std::string_view> known;
    for (auto subject = std::next(subjects.begin()); subject != subjects.end(); ++subject) {
        if (line.command == Command::ListMedia)
            throw UsageError("unexpected argument " + quoted(*subject));
        if (known.insert(*subject).second)
            line.mediaPaths.push_back(*subject);
    }
    if (line.command != Command::ListMedia && line.mediaPaths.empty())
        throw UsageError("the path of a file on the device is missing; 'korvane-cli media list' lists them");
}

} // namespace

void readMediaArguments(const std::vector<std::string>& arguments, CommandLine& line)
{
    const auto action = positionOfAction(arguments);
    line.command = commandOf(arguments[action]);
    std::vector<std::string> subjects;
    for (std::size_t next = 1; next < arguments.size(); ++next) {
        const auto& argument = arguments[next];
        if (next == action)
            continue;
        if (argument == folderOption)
            setFolder(line, next + 1 < arguments.size() ? arguments[++next] : "");
        else if (argument.starts_with('-'))
            readOption(argument, line);
        else
            subjects.push_back(argument);
    }
    readSubjects(subjects, line);
}

} // namespace Korvane
