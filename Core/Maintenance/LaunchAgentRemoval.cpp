// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentRemoval.h"

#include "Platform/BackgroundItems.h"
#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/Localized.h"
#include "Platform/TrimmedText.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <vector>

namespace Korvane {

namespace {

using Kind = LaunchAgent::Kind;

/// Where the user's files of this kind lie.
std::vector<std::filesystem::path> foldersOf(Kind kind, const Host& host)
{
    switch (kind) {
    case Kind::PropertyList:
        return { host.files->homeDirectoryForCurrentUser() / "Library/LaunchAgents" };
    case Kind::Autostart:
        return ownFolders(BackgroundItem::Kind::Autostart, host.environment);
    case Kind::SystemdUnit:
        return ownFolders(BackgroundItem::Kind::SystemdUnit, host.environment);
    }
    return {};
}

bool hasItsExtension(const LaunchAgent& agent)
{
    const auto extension = agent.url.extension();
    switch (agent.kind) {
    case Kind::PropertyList:
        return extension == ".plist";
    case Kind::Autostart:
        return extension == ".desktop";
    case Kind::SystemdUnit:
        return !extension.empty();
    }
    return false;
}

/// Whether a scan can have found it there: a record made otherwise must not send away whatever it names.
bool isInItsFolder(const LaunchAgent& agent, const Host& host)
{
    const auto name = agent.url.filename();
    const auto folders = foldersOf(agent.kind, host);
    return hasItsExtension(agent)
        && std::any_of(folders.begin(), folders.end(), [&](const auto& folder) { return agent.url == folder / name; });
}

/// What kept a service manager from ending by itself, in words; empty when it did, and when it could not be started.
/// Fills in what it said.
std::string runManager(
    const ChildProcess& manager, const Host& host, const Cancellation& cancellation, ChildResult& result)
{
    try {
        result = host.processes->run(manager, cancellation);
        return "";
    } catch (const CancellationError&) {
        return localized("Errors", "stopping it was cancelled");
    } catch (const FileError& error) {
        if (error.code() == std::errc::timed_out)
            return filledIn(localized("Errors", "%1 took too long"), { displayText(manager.program.filename()) });
        result.errorOutput.text = error.localizedDescription();
        return "";
    }
}

/// What kept a property list from being taken from the service manager. What the manager says does not count: it knows
/// only what it has been given; nor that a host has none.
std::string bootOut(const LaunchAgent& agent, const Host& host, const Cancellation& cancellation)
{
    ChildProcess manager;
    manager.program = host.environment.serviceManager;
    manager.arguments = { "bootout", "gui/" + std::to_string(host.environment.userId), agent.url.native() };
    // As long as a unit is given.
    manager.timeLimit = std::chrono::minutes(3);
    ChildResult result;
    return runManager(manager, host, cancellation, result);
}

/// What kept a unit from being stopped, in words; empty when nothing did.
std::string stopUnit(const LaunchAgent& agent, const Host& host, const Cancellation& cancellation)
{
    const auto manager = unitStop(agent.url, host.environment);
    if (!manager)
        return localized("Errors", "systemctl is missing");
    ChildResult result;
    if (auto unended = runManager(*manager, host, cancellation, result); !unended.empty())
        return unended;
    if (result.hasSucceeded())
        return "";
    const auto text = trimmedText(result.errorOutput.text);
    return text.empty() ? localized("Errors", "systemctl failed") : displayText(text);
}

/// What kept an item from being stopped, in words; empty when nothing did, or nothing of it is to be stopped.
std::string stop(const LaunchAgent& agent, const Host& host, const Cancellation& cancellation)
{
    switch (agent.kind) {
    case Kind::PropertyList:
        return bootOut(agent, host, cancellation);
    case Kind::SystemdUnit:
        return stopUnit(agent, host, cancellation);
    case Kind::Autostart:
        break;
    }
    return "";
}

/// What kept a file from going to the Trash, in words; empty when nothing did.
std::string trash(const LaunchAgent& agent, const Host& host)
{
    try {
        host.files->trashItem(agent.url);
    } catch (const FileError& error) {
        // Disabling a unit whose file is a link to elsewhere takes the link away.
        const bool isGone = error.code() == std::errc::no_such_file_or_directory;
        if (agent.kind != Kind::SystemdUnit || !isGone)
            return error.localizedDescription();
    }
    return "";
}

} // namespace

std::optional<std::string> removeLaunchAgent(
    const LaunchAgent& agent, const Host& host, const Cancellation& cancellation)
{
    if (!agent.removable())
        return std::nullopt;
    if (!isInItsFolder(agent, host))
        return FileError(agent.url, std::make_error_code(std::errc::operation_not_permitted)).localizedDescription();
    const auto unstopped = stop(agent, host, cancellation);
    const auto kept = trash(agent, host);
    if (!kept.empty())
        return filledIn(localized("Errors", "not moved to the Trash: %1"), { kept });
    if (!unstopped.empty())
        return filledIn(
            localized("Errors", "moved to the Trash, but it may still run until the next login: %1"), { unstopped });
    return std::nullopt;
}

} // namespace Korvane
