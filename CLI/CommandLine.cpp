// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/CommandLine.h"

#include "CLI/UsageError.h"
#include "Platform/DisplayText.h"

#include <algorithm>
#include <utility>

namespace Korvane {

namespace {

using Command = CommandLine::Command;
using Selection = CommandLine::Selection;

constexpr std::string_view itemOption = "--item";
constexpr std::string_view itemAssignment = "--item=";

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
            throw UsageError("a command is missing; one of: modules, scan, clean, --help, --version");
        if (asksFor("--help") || asksFor("-h"))
            return m_result;
        if (m_arguments.front() == "--version") {
            requireNothingBehind(1);
            m_result.command = Command::Version;
            return m_result;
        }
        readCommand();
        while (m_next < m_arguments.size())
            readArgument(m_arguments[m_next++]);
        if (!m_hasModule && m_result.command != Command::Modules)
            throw UsageError("a module is missing; one of: " + scannableModules());
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

    void requireNothingBehind(std::size_t position) const
    {
        if (position < m_arguments.size())
            throw UsageError("unexpected argument '" + displayText(std::string_view(m_arguments[position])) + "'");
    }

    void readCommand()
    {
        const auto& command = m_arguments[m_next++];
        if (command == "modules")
            m_result.command = Command::Modules;
        else if (command == "scan")
            m_result.command = Command::Scan;
        else if (command == "clean")
            m_result.command = Command::Clean;
        else
            throw UsageError("unknown command '" + displayText(std::string_view(command))
                + "'; one of: modules, scan, clean, --help, --version");
    }

    void readArgument(const std::string& argument)
    {
        if (argument == "--json")
            m_result.format = CommandLine::Format::Json;
        else if (startsWith(argument, "-"))
            readCleanOption(argument);
        else
            readModule(argument);
    }

    void readCleanOption(const std::string& option)
    {
        const bool isItem = option == itemOption || startsWith(option, itemAssignment);
        if (!isItem && option != "--all" && option != "--delete" && option != "--yes")
            throw UsageError(
                "unknown option '" + displayText(std::string_view(option)) + "'; --help lists the options there are");
        if (m_result.command != Command::Clean)
            throw UsageError("option '" + option.substr(0, option.find('=')) + "' belongs to the command 'clean' only");
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

    void readModule(const std::string& name)
    {
        if (m_hasModule || m_result.command == Command::Modules)
            requireNothingBehind(m_next - 1);
        const auto module = cleanerModule(name);
        if (!module)
            throw UsageError(
                "unknown module '" + displayText(std::string_view(name)) + "'; one of: " + scannableModules());
        if (!isScannable(*module))
            throw UsageError("module '" + name + "' has no scan; one of: " + scannableModules());
        m_result.module = *module;
        m_hasModule = true;
    }

    const std::vector<std::string>& m_arguments;
    std::size_t m_next = 0;
    bool m_hasModule = false;
    CommandLine m_result;
};

} // namespace

CommandLine CommandLine::parse(const std::vector<std::string>& arguments) { return Parser(arguments).parse(); }

std::string_view usageText()
{
    return "Usage:\n"
           "  korvane-cli modules [--json]\n"
           "  korvane-cli scan MODULE [--json]\n"
           "  korvane-cli clean MODULE [--all | --item PATH ...] [--delete] [--yes] [--json]\n"
           "  korvane-cli --help | --version\n"
           "\n"
           "MODULE is systemJunk, largeFiles or duplicates.\n"
           "\n"
           "scan shows what could be cleaned, and changes nothing. clean scans, then takes the\n"
           "pre-selected findings, and without --yes only says what it would do.\n"
           "\n"
           "  --all        take all findings, also those that may be in use or needed\n"
           "  --item PATH  take this finding; may be given more than once\n"
           "  --delete     delete for good instead of moving to the Trash\n"
           "  --yes        do it\n"
           "  --json       print one JSON object\n"
           "\n"
           "Exit status: 0 done, 1 some items failed, 2 wrong use, 130 cancelled by Ctrl-C.\n";
}

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

} // namespace Korvane
