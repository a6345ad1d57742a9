// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgentRemoval.h"

#include "Platform/BackgroundItems.h"
#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/TrimmedText.h"

#include <algorithm>
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

/// What the service manager says does not count: it knows only what it has been given.
void bootOut(const LaunchAgent& agent, const Host& host)
{
    ChildProcess manager;
    manager.program = host.environment.serviceManager;
    manager.arguments = { "bootout", "gui/" + std::to_string(host.environment.userId), agent.url.native() };
    try {
        host.processes->run(manager, {});
    } catch (const FileError&) {
        // A host that has no such manager has nothing to take from it.
    }
}

/// What kept a unit from being stopped, in words; empty when nothing did.
std::string stopUnit(const LaunchAgent& agent, const Host& host)
{
    const auto stop = unitStop(agent.url, host.environment);
    if (!stop)
        return "systemctl is missing";
    try {
        const auto result = host.processes->run(*stop, {});
        const auto text = trimmedText(result.errorOutput.text);
        if (result.hasSucceeded())
            return "";
        return text.empty() ? "systemctl failed" : displayText(text);
    } catch (const FileError& error) {
        return error.localizedDescription();
    }
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

std::optional<std::string> removeLaunchAgent(const LaunchAgent& agent, const Host& host)
{
    if (!agent.removable())
        return std::nullopt;
    if (!isInItsFolder(agent, host))
        return FileError(agent.url, std::make_error_code(std::errc::operation_not_permitted)).localizedDescription();
    if (agent.kind == Kind::PropertyList)
        bootOut(agent, host);
    const auto unstopped = agent.kind == Kind::SystemdUnit ? stopUnit(agent, host) : std::string();
    const auto kept = trash(agent, host);
    if (!kept.empty())
        return "not moved to the Trash: " + kept;
    if (!unstopped.empty())
        return "moved to the Trash, but it may still run until the next login: " + unstopped;
    return std::nullopt;
}

} // namespace Korvane
