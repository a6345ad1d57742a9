// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/CommandLine.h"

#include "CLI/MediaArguments.h"
#include "CLI/UsageError.h"
#include "Platform/DisplayText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Korvane {

namespace {

using Command = CommandLine::Command;
using Selection = CommandLine::Selection;

constexpr std::string_view commands = "one of: modules, scan, clean, apps, uninstall, maintenance, agents, "
                                      "devices, backups, media, --help, --version";
constexpr std::string_view itemOption = "--item";
constexpr std::string_view itemAssignment = "--item=";

constexpr std::string_view ownersOfYes
    = "the commands 'clean', 'uninstall', 'agents remove', 'backups remove' and 'media delete'";
constexpr std::string_view ownerOfTheOthers = "the command 'clean'";

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/// Reads arguments one after another into a command line.
class Parser {
public:
    explicit Parser(const std::vector<std::string>& arguments)
        : m_arguments(arguments)
    {
    }

    CommandLine parse()
    {
        if (m_arguments.empty())
            throw UsageError("a command is missing; " + std::string(commands));
        if (asksFor("--help") || asksFor("-h"))
            return m_result;
        if (m_arguments.front() == "--version") {
            requireNothingBehind(1);
            m_result.command = Command::Version;
            return m_result;
        }
        readCommand();
        if (m_result.command == Command::ListMedia) {
            readMediaArguments(m_arguments, m_result);
            return m_result;
        }
        while (m_next < m_arguments.size())
            readArgument(m_arguments[m_next++]);
        requireSubject();
        return m_result;
    }

private:
    /// Whether an option stands among the arguments, other than as the path of an item.
    bool asksFor(std::string_view option) const
    {
        for (std::size_t i = 0; i < m_arguments.size(); ++i) {
            if (m_arguments[i] == itemOption)
                ++i;
            else if (m_arguments[i] == option)
                return true;
        }
        return false;
    }

    void requireSubject() const
    {
        if (m_result.command == Command::Uninstall && !m_hasSubject)
            throw UsageError("the path or the identifier of an application is missing; 'korvane-cli apps' lists them");
        if (m_result.command == Command::RunTask && !m_hasSubject)
            throw UsageError("a task is missing; one of: " + maintenanceTasks());
        if (m_result.command == Command::RemoveAgent && !m_hasSubject)
            throw UsageError("the path of a background item is missing; 'korvane-cli agents' lists them");
        if (m_result.command == Command::RemoveBackup && !m_hasSubject)
            throw UsageError("the path of a backup is missing; 'korvane-cli backups' lists them");
        const bool takesModule = m_result.command == Command::Scan || m_result.command == Command::Clean;
        if (takesModule && !m_hasSubject)
            throw UsageError("a module is missing; one of: " + scannableModules());
    }

    void requireNothingBehind(std::size_t position) const
    {
        if (position < m_arguments.size())
            throw UsageError("unexpected argument '" + displayText(std::string_view(m_arguments[position])) + "'");
    }

    void readCommand()
    {
        using Named = std::pair<std::string_view, Command>;
        static constexpr std::array names{ Named{ "modules", Command::Modules }, Named{ "scan", Command::Scan },
            Named{ "clean", Command::Clean }, Named{ "apps", Command::Apps }, Named{ "uninstall", Command::Uninstall },
            Named{ "maintenance", Command::Maintenance }, Named{ "agents", Command::Agents },
            Named{ "devices", Command::Devices }, Named{ "backups", Command::Backups },
            Named{ "media", Command::ListMedia } };
        const auto& command = m_arguments[m_next++];
        const auto found
            = std::find_if(names.begin(), names.end(), [&](const Named& named) { return named.first == command; });
        if (found == names.end())
            throw UsageError(
                "unknown command '" + displayText(std::string_view(command)) + "'; " + std::string(commands));
        m_result.command = found->second;
    }

    void readArgument(const std::string& argument)
    {
        if (argument == "--json")
            m_result.format = CommandLine::Format::Json;
        else if (argument == "--yes" && takesYesAlone())
            m_result.confirmation = CommandLine::Confirmation::Given;
        else if (startsWith(argument, "-"))
            readCleanOption(argument);
        else
            readSubject(argument);
    }

    bool takesYesAlone() const
    {
        return m_result.command == Command::Uninstall || m_result.command == Command::RemoveAgent
            || m_result.command == Command::RemoveBackup;
    }

    void readCleanOption(const std::string& option)
    {
        const bool isItem = option == itemOption || startsWith(option, itemAssignment);
        if (!isItem && option != "--all" && option != "--delete" && option != "--yes")
            throw UsageError(
                "unknown option '" + displayText(std::string_view(option)) + "'; --help lists the options there are");
        if (m_result.command != Command::Clean)
            throw UsageError("option '" + option.substr(0, option.find('=')) + "' belongs to "
                + std::string(option == "--yes" ? ownersOfYes : ownerOfTheOthers) + " only");
        if (option == "--delete")
            m_result.removal = CommandLine::Removal::Delete;
        else if (option == "--yes")
            m_result.confirmation = CommandLine::Confirmation::Given;
        else if (option == "--all")
            select(Selection::All);
        else
            readItem(option);
    }

    void readItem(const std::string& option)
    {
        select(Selection::Named);
        if (option != itemOption) {
            m_result.namedItems.emplace_back(option.substr(itemAssignment.size()));
            return;
        }
        if (m_next == m_arguments.size())
            throw UsageError("option '--item' needs the path of one of the findings");
        m_result.namedItems.emplace_back(m_arguments[m_next++]);
    }

    void select(Selection selection)
    {
        if (m_result.selection != Selection::Preselected && m_result.selection != selection)
            throw UsageError("options '--all' and '--item' exclude each other");
        m_result.selection = selection;
    }

    void readSubject(const std::string& argument)
    {
        const bool takesNone = m_result.command == Command::Modules || m_result.command == Command::Apps
            || m_result.command == Command::Devices;
        if (m_hasSubject || takesNone)
            requireNothingBehind(m_next - 1);
        m_hasSubject = true;
        switch (m_result.command) {
        case Command::Uninstall:
            m_result.application = argument;
            break;
        case Command::Maintenance:
        case Command::Agents:
        case Command::Backups:
            readAction(argument);
            break;
        case Command::RunTask:
            readTask(argument);
            break;
        case Command::RemoveAgent:
            m_result.agent = argument;
            break;
        case Command::RemoveBackup:
            m_result.backup = argument;
            break;
        default:
            readModule(argument);
        }
    }

    /// What can be done with the things that a command lists, besides listing them.
    struct Action {
        std::string_view name;
        Command command;
    };

    static Action actionOf(Command command)
    {
        if (command == Command::Maintenance)
            return { "run", Command::RunTask };
        return { "remove", command == Command::Agents ? Command::RemoveAgent : Command::RemoveBackup };
    }

    /// All but listing needs a subject of its own.
    void readAction(const std::string& name)
    {
        const auto action = actionOf(m_result.command);
        if (name == "list")
            return;
        if (name != action.name)
            throw UsageError("unknown action '" + displayText(std::string_view(name)) + "'; one of: list, "
                + std::string(action.name));
        m_result.command = action.command;
        m_hasSubject = false;
    }

    void readTask(const std::string& name)
    {
        const auto task = maintenanceTask(name);
        if (!task)
            throw UsageError(
                "unknown task '" + displayText(std::string_view(name)) + "'; one of: " + maintenanceTasks());
        m_result.task = *task;
    }

    void readModule(const std::string& name)
    {
        const auto module = cleanerModule(name);
        if (!module)
            throw UsageError(
                "unknown module '" + displayText(std::string_view(name)) + "'; one of: " + scannableModules());
        if (!isScannable(*module))
            throw UsageError("module '" + name + "' has no scan; one of: " + scannableModules());
        m_result.module = *module;
    }

    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    bool m_hasSubject = false;
    CommandLine m_result;
};

} // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) { return Parser(arguments).parse(); }

bool isScannable(CleanerModule module)
{
    return module == CleanerModule::systemJunk || module == CleanerModule::largeFiles
        || module == CleanerModule::duplicates;
}

std::string scannableModules()
{
    std::string names;
    for (const auto module : allCleanerModules) {
        if (!isScannable(module))
            continue;
        names += names.empty() ? "" : ", ";
        names += rawValue(module);
    }
    return names;
}

std::string maintenanceTasks()
{
    std::string names;
    for (const auto task : allMaintenanceTasks) {
        names += names.empty() ? "" : ", ";
        names += rawValue(task);
    }
    return names;
}

} // namespace Korvane
