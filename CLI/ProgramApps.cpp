// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/AppReports.h"
#include "CLI/Program.h"
#include "CLI/Reports.h"
#include "CLI/StandardStreams.h"
#include "CLI/TerminalProgress.h"
#include "CLI/UsageError.h"
#include "Core/Uninstalling/AppInventoryScanner.h"
#include "Core/Uninstalling/AppRemoval.h"
#include "Platform/DisplayText.h"
#include "Platform/TrailingSlashes.h"

#include <string>

namespace Korvane {

namespace {

/// The one application that was named, by its path or by its identifier.
const InstalledApp& named(const std::vector<InstalledApp>& apps, const std::string& name)
{
    const bool isPath = name.find('/') != std::string::npos;
    const auto path = withoutTrailingSlashes(name);
    std::vector<const InstalledApp*> found;
    for (const auto& app : apps) {
        if (isPath ? app.url.native() == path : app.bundleID == name)
            found.push_back(&app);
    }
    const auto shown = "'" + displayText(std::string_view(name)) + "'";
    if (found.empty())
        throw UsageError(shown + " is not among the applications; 'korvane-cli apps' lists them");
    if (found.size() > 1 && !isPath) {
        std::string message = shown + " is the identifier of " + std::to_string(found.size())
            + " applications; name one of them by its path:";
        for (const auto* app : found)
            message += "\n  " + displayText(app->url);
        throw UsageError(message);
    }
    return *found.front();
}

} // namespace

ExitStatus Program::listApps(const CommandLine& line) const
{
    const auto apps = scanApps();
    const RunningApps running(*m_host.workspace);
    print(line.format == CommandLine::Format::Json ? appsAsJson(apps, running) : appsAsText(apps, running));
    return ExitStatus::Done;
}

ExitStatus Program::uninstall(const CommandLine& line) const
{
    const bool isJson = line.format == CommandLine::Format::Json;
    const auto apps = scanApps();
    const auto& app = named(apps, line.application);
    if (RunningApps(*m_host.workspace).contains(app)) {
        StandardStreams::complain(app.name + " is running; quit it first. Nothing has been changed");
        return ExitStatus::Failed;
    }
    if (line.confirmation == CommandLine::Confirmation::Missing) {
        print(isJson ? uninstallPlanAsJson(app) : uninstallPlanAsText(app));
        return ExitStatus::Done;
    }
    m_cancellation.throwIfCancelled();
    const auto result = AppRemoval::remove(app, m_host);
    print(isJson ? resultAsJson(result) : resultAsText(result));
    return result.failures.empty() ? ExitStatus::Done : ExitStatus::Failed;
}

std::vector<InstalledApp> Program::scanApps() const
{
    TerminalProgress terminal;
    auto apps = AppInventoryScanner().scanApps(
        m_host, [&](const ScanProgress& progress) { terminal.show(progress); }, m_cancellation);
    m_cancellation.throwIfCancelled();
    return apps;
}

} // namespace Korvane
