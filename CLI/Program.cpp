// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Program.h"

#include "CLI/FailureText.h"
#include "CLI/MaintenanceReports.h"
#include "CLI/Reports.h"
#include "CLI/StandardStreams.h"
#include "CLI/TerminalProgress.h"
#include "CLI/UsageError.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

#include <exception>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

using Command = CommandLine::Command;
using Format = CommandLine::Format;
using Selection = CommandLine::Selection;

/// The findings that were named; every name has to be among them.
std::vector<ScanItem> named(const std::vector<ScanItem>& findings, const CommandLine& line)
{
    std::unordered_set<std::string> wanted;
    for (const auto& path : line.namedItems)
        wanted.insert(path.native());
    std::vector<ScanItem> items;
    for (const auto& finding : findings) {
        if (wanted.erase(finding.url.native()) != 0)
            items.push_back(finding);
    }
    for (const auto& path : line.namedItems) {
        if (wanted.count(path.native()) != 0)
            throw UsageError("'" + displayText(path) + "' is not among the findings; 'korvane-cli scan "
                + std::string(rawValue(line.module)) + "' lists them");
    }
    return items;
}

void append(Cleaner::Result& result, Cleaner::Result&& more)
{
    result.cleanedBytes = checkedAdd(result.cleanedBytes, more.cleanedBytes);
    result.cleanedCount = checkedAdd(result.cleanedCount, more.cleanedCount);
    for (auto& failure : more.failures)
        result.failures.push_back(std::move(failure));
}

} // namespace

Program::Program(Host host, Cancellation cancellation)
    : m_host(std::move(host))
    , m_cancellation(std::move(cancellation))
{
}

ExitStatus Program::run(const std::vector<std::string>& arguments) noexcept
{
    try {
        return runCommand(CommandLine::parse(arguments));
    } catch (const UsageError& error) {
        StandardStreams::complain(error.what());
        return ExitStatus::WrongUse;
    } catch (const CancellationError&) {
        return ExitStatus::Cancelled;
    } catch (const std::exception& error) {
        StandardStreams::complain(failureText(error));
        return ExitStatus::Failed;
    }
}

ExitStatus Program::runCommand(const CommandLine& line)
{
    const bool isJson = line.format == Format::Json;
    switch (line.command) {
    case Command::Help:
        print(std::string(usageText()));
        return ExitStatus::Done;
    case Command::Version:
        print("korvane-cli " KORVANE_VERSION "\n");
        return ExitStatus::Done;
    case Command::Modules:
        print(isJson ? modulesAsJson() : modulesAsText());
        return ExitStatus::Done;
    case Command::Scan: {
        const auto items = scan(line.module);
        print(isJson ? findingsAsJson(line.module, items) : findingsAsText(items, sharedStorage(line.module, items)));
        return ExitStatus::Done;
    }
    case Command::Clean:
        return clean(line);
    case Command::Apps:
        return listApps(line);
    case Command::Uninstall:
        return uninstall(line);
    case Command::Maintenance:
        print(isJson ? tasksAsJson(m_host) : tasksAsText(m_host));
        return ExitStatus::Done;
    case Command::RunTask:
        return runTask(line);
    case Command::Agents:
        return listAgents(line);
    case Command::RemoveAgent:
        return removeAgent(line);
    default:
        return runDeviceCommand(line);
    }
}

/// The commands for devices on the cable and their backups.
ExitStatus Program::runDeviceCommand(const CommandLine& line) const
{
    switch (line.command) {
    case Command::Devices:
        return listDevices(line);
    case Command::Backups:
        return listBackups(line);
    case Command::RemoveBackup:
        return removeBackup(line);
    case Command::ListMedia:
        return listMedia(line);
    case Command::ExportMedia:
        return exportMedia(line);
    case Command::DeleteMedia:
        return deleteMedia(line);
    default:
        return ExitStatus::WrongUse;
    }
}

ExitStatus Program::clean(const CommandLine& line)
{
    const bool isJson = line.format == Format::Json;
    const bool isPlan = line.confirmation == CommandLine::Confirmation::Missing;
    auto found = scan(line.module);
    auto shared = isPlan && !isJson ? sharedStorage(line.module, found) : SharedStorageOfItems();
    const auto items = chosen(line, std::move(found));
    if (isPlan) {
        CleaningPlan plan{ line.module, line.selection, {}, std::move(shared) };
        const bool moveToTrash = line.removal == CommandLine::Removal::MoveToTrash;
        for (const auto& item : items)
            plan.steps.push_back({ item, Cleaner::action(item.url, moveToTrash, *m_host.files) });
        print(isJson ? planAsJson(plan) : planAsText(plan));
        return ExitStatus::Done;
    }
    const auto result = cleanEach(items, line.removal);
    print(isJson ? resultAsJson(result) : resultAsText(result));
    const auto done = static_cast<std::size_t>(result.cleanedCount) + result.failures.size();
    if (done < items.size()) {
        StandardStreams::complain("cancelled; " + std::to_string(items.size() - done) + " items were not touched");
        return ExitStatus::Cancelled;
    }
    return result.failures.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

std::vector<ScanItem> Program::scan(CleanerModule module) const
{
    TerminalProgress terminal;
    auto items = scanner(module, *m_host.files)
                     ->scan(
                         m_host, [&](const ScanProgress& progress) { terminal.show(progress); }, m_cancellation);
    m_cancellation.throwIfCancelled();
    return items;
}

SharedStorageOfItems Program::sharedStorage(CleanerModule module, const std::vector<ScanItem>& items) const
{
    return scanner(module, *m_host.files)->sharedStorage(items, m_cancellation);
}

std::vector<ScanItem> Program::chosen(const CommandLine& line, std::vector<ScanItem> items) const
{
    switch (line.selection) {
    case Selection::All:
        return items;
    case Selection::Named:
        return named(items, line);
    case Selection::Preselected:
        break;
    }
    std::vector<ScanItem> preselected;
    for (auto& item : items) {
        if (item.selectableByDefault)
            preselected.push_back(std::move(item));
    }
    return preselected;
}

/// Item by item, so that a cancel lets the one at hand be finished and the report says exactly what was done.
Cleaner::Result Program::cleanEach(const std::vector<ScanItem>& items, CommandLine::Removal removal)
{
    TerminalProgress terminal;
    Cleaner::Result result;
    const bool moveToTrash = removal == CommandLine::Removal::MoveToTrash;
    const auto run = moveToTrash ? m_host.files->beginTrashing() : nullptr; // One for all items.
    for (std::size_t i = 0; i < items.size() && !m_cancellation.isCancelled(); ++i) {
        terminal.showCleaning(i + 1, items.size(), displayText(items[i].url));
        append(result, Cleaner::clean({ items[i] }, moveToTrash, *m_host.files));
    }
    return result;
}

void Program::print(const std::string& text) const { StandardStreams::write(text, m_cancellation); }

} // namespace Korvane
