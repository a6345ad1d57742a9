// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/HostMaintenance.h"

#include "Platform/DisplayText.h"
#include "Platform/Localized.h"
#include "Platform/Processes/InstalledProgram.h"
#include "Platform/TrimmedText.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <utility>

namespace Korvane {

namespace {

constexpr const char* administratorTool = "pkexec";
/// The statuses of pkexec(1): the user dismissed the dialog, and any other reason for which it did not run the program.
constexpr int dismissed = 126;
constexpr int notAuthorized = 127;

std::string nothingToFlush()
{
    return localized("Errors", "There is nothing to flush: this machine keeps no DNS cache");
}

ChildProcess call(std::filesystem::path program, std::vector<std::string> arguments)
{
    ChildProcess process;
    process.program = std::move(program);
    process.arguments = std::move(arguments);
    return process;
}

/// Only the desktop is to ask: the tool's own question on a terminal would wait for ever in a group of its own.
ChildProcess privileged(
    const std::filesystem::path& tool, const std::filesystem::path& program, std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), { "--disable-internal-agent", program.native() });
    return call(tool, std::move(arguments));
}

HostMeans missing(std::string text) { return { {}, std::move(text), {} }; }

HostMeans withoutAdministrator()
{
    return missing(localized("Errors", "pkexec is missing, which asks for an administrator's password"));
}

/// What was changed is written to the disk first, so that its memory can be given back too.
HostMeans pageCacheMeans(const std::vector<std::filesystem::path>& folders, const std::filesystem::path& administrator)
{
    const auto sync = installedProgram(folders, "sync");
    const auto sysctl = installedProgram(folders, "sysctl");
    if (sync.empty() || sysctl.empty())
        return missing(
            filledIn(localized("Errors", "%1 is missing, which frees memory"), { sync.empty() ? "sync" : "sysctl" }));
    if (administrator.empty())
        return withoutAdministrator();
    // The page cache alone is 1 (proc_sys_vm(5), drop_caches).
    return { { call(sync, {}), privileged(administrator, sysctl, { "-q", "vm.drop_caches=1" }) }, {}, {} };
}

HostMeans resolverMeans(const std::vector<std::filesystem::path>& folders, const std::filesystem::path& administrator)
{
    const auto resolver = installedProgram(folders, "resolvectl");
    if (resolver.empty())
        return missing(nothingToFlush());
    if (administrator.empty())
        return withoutAdministrator();
    return { { privileged(administrator, resolver, { "flush-caches" }) }, {}, {} };
}

/// What has the indexer of localsearch begin anew at once. Its own command for that went with version 3.10; without
/// either the desktop starts the indexer at the next login.
ChildProcess indexerStart(const std::vector<std::filesystem::path>& folders, const std::filesystem::path& localsearch)
{
    const auto manager = installedProgram(folders, "systemctl");
    auto start = manager.empty() ? call(localsearch, { "daemon", "--start" })
                                 : call(manager, { "--user", "start", "localsearch-3.service" });
    // By default a unit is given 90 seconds to start (systemd-system.conf(5)).
    start.timeLimit = std::chrono::minutes(2);
    return start;
}

/// The search of GNOME, under both its names.
std::optional<HostMeans> gnomeIndexMeans(const std::vector<std::filesystem::path>& folders)
{
    const std::vector<std::string> reset{ "reset", "--filesystem" };
    if (const auto tool = installedProgram(folders, "localsearch"); !tool.empty())
        return HostMeans{ { call(tool, reset) }, {}, { indexerStart(folders, tool) } };
    if (const auto tool = installedProgram(folders, "tracker3"); !tool.empty())
        return HostMeans{ { call(tool, reset), call(tool, { "daemon", "--start" }) }, {}, {} };
    return std::nullopt;
}

/// The search of KDE, under both its names.
std::optional<HostMeans> kdeIndexMeans(const std::vector<std::filesystem::path>& folders)
{
    for (const char* const name : { "balooctl6", "balooctl" }) {
        if (const auto tool = installedProgram(folders, name); !tool.empty())
            return HostMeans{ { call(tool, { "purge" }) }, {}, {} };
    }
    return std::nullopt;
}

/// Where the searches of both desktops are installed, that of the one that runs.
HostMeans searchIndexMeans(const Environment& environment)
{
    const auto& folders = environment.programFolders;
    const auto& desktops = environment.currentDesktops;
    const bool isKde = std::find(desktops.begin(), desktops.end(), "KDE") != desktops.end();
    auto means = isKde ? kdeIndexMeans(folders) : gnomeIndexMeans(folders);
    if (!means)
        means = isKde ? gnomeIndexMeans(folders) : kdeIndexMeans(folders);
    return means ? *means
                 : missing(localized("Errors", "No search index is installed (localsearch, tracker3 or balooctl)"));
}

/// What a program that failed has to say for itself, on one line; empty when nothing.
std::string complaint(const ChildResult& result)
{
    const auto text = trimmedText(result.errorOutput.text);
    return displayText(text.empty() ? trimmedText(result.output.text) : text);
}

bool says(const std::string& text, std::string_view words) { return text.find(words) != std::string::npos; }

/// Whether resolvectl found no service to talk to, rather than one that failed: in the words of systemd, which has no
/// such unit or has it masked, of dbus-daemon and of dbus-broker. None of them is translated.
bool lacksResolver(const std::string& text)
{
    constexpr std::array absences{ "org.freedesktop.resolve1.service not found",
        "org.freedesktop.resolve1.service is masked", "org.freedesktop.resolve1 was not provided by any .service files",
        "'org.freedesktop.resolve1': activation request failed: unknown unit", "The name is not activatable" };
    return std::any_of(absences.begin(), absences.end(), [&](const char* words) { return says(text, words); });
}

/// Its texts are never translated.
std::optional<std::string> refusal(const ChildResult& result, const std::string& text)
{
    if (result.exitStatus == dismissed)
        return localized("Errors", "The request for an administrator's password was dismissed; nothing was changed");
    if (result.exitStatus != notAuthorized)
        return std::nullopt;
    if (says(text, "Not authorized"))
        return localized("Errors", "An administrator's rights were not given; nothing was changed");
    if (text.empty() || says(text, "No authentication agent found"))
        return localized("Errors",
            "No program that asks for an administrator's password is running (a polkit agent); nothing was changed");
    return filledIn(localized("Errors", "An administrator's password could not be asked for: %1"), { text });
}

} // namespace

std::optional<HostMeans> hostMeans(HostTask task, const Environment& environment)
{
    const auto& folders = environment.programFolders;
    const auto administrator = installedProgram(folders, administratorTool);
    switch (task) {
    case HostTask::DropPageCache:
        return pageCacheMeans(folders, administrator);
    case HostTask::FlushResolver:
        return resolverMeans(folders, administrator);
    case HostTask::RebuildSearchIndex:
        return searchIndexMeans(environment);
    }
    return std::nullopt;
}

std::string hostFailure(const ChildProcess& step, const ChildResult& result)
{
    const auto text = complaint(result);
    if (step.program.filename() == administratorTool) {
        if (auto reason = refusal(result, text))
            return *reason;
        // The resolver's tool is there, but not the service that it talks to.
        if (lacksResolver(text))
            return nothingToFlush();
    }
    if (!text.empty())
        return filledIn(localized("Errors", "The command failed: %1"), { text });
    if (result.signal)
        return filledIn(localized("Errors", "The command was ended by signal %1"), { std::to_string(*result.signal) });
    return filledIn(
        localized("Errors", "The command failed with status %1"), { std::to_string(result.exitStatus.value_or(0)) });
}

} // namespace Korvane
