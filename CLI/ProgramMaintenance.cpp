// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/FailureText.h"
#include "CLI/MaintenanceReports.h"
#include "CLI/Program.h"
#include "CLI/StandardStreams.h"
#include "CLI/UsageError.h"
#include "Core/Maintenance/LaunchAgentRemoval.h"
#include "Core/Maintenance/LaunchAgentsScanner.h"
#include "Core/Maintenance/MaintenanceRunner.h"
#include "Platform/DisplayText.h"
#include "Platform/FileError.h"
#include "Platform/TrailingSlashes.h"

#include <optional>
#include <string>

namespace Korvane {

namespace {

const LaunchAgent& named(const std::vector<LaunchAgent>& agents, const std::string& name)
{
    const auto path = withoutTrailingSlashes(name);
    for (const auto& agent : agents) {
        if (agent.url.native() == path)
            return agent;
    }
    throw UsageError("'" + displayText(std::string_view(name))
        + "' is not among the background items; 'korvane-cli agents' lists them");
}

/// Why a task is not done; nothing when it is.
std::optional<std::string> failureOf(MaintenanceTask task, const Host& host, const Cancellation& cancellation)
{
    try {
        MaintenanceRunner::run(task, host, cancellation);
        return std::nullopt;
    } catch (const MaintenanceRunner::RunError& error) {
        return error.what();
    } catch (const FileError& error) {
        return failureText(error);
    }
}

ExitStatus statusOf(const std::optional<std::string>& failure)
{
    return failure ? ExitStatus::Failed : ExitStatus::Done;
}

} // namespace

ExitStatus Program::runTask(const CommandLine& line) const
{
    const auto failure = failureOf(line.task, m_host, m_cancellation);
    if (line.format == CommandLine::Format::Json)
        print(taskResultAsJson(line.task, failure));
    else
        tell(taskResultAsText(line.task, failure), statusOf(failure));
    return statusOf(failure);
}

ExitStatus Program::listAgents(const CommandLine& line) const
{
    const auto agents = LaunchAgentsScanner().scan(m_host, m_cancellation);
    print(line.format == CommandLine::Format::Json ? agentsAsJson(agents) : agentsAsText(agents));
    return ExitStatus::Done;
}

void Program::tell(const std::string& outcome, ExitStatus status) const
{
    if (status == ExitStatus::Done)
        print(outcome + "\n");
    else
        StandardStreams::complain(outcome);
}

ExitStatus Program::removeAgent(const CommandLine& line) const
{
    const bool isJson = line.format == CommandLine::Format::Json;
    const auto agents = LaunchAgentsScanner().scan(m_host, m_cancellation);
    const auto& agent = named(agents, line.agent);
    if (!agent.removable()) {
        StandardStreams::complain(
            displayText(agent.url) + " is not the user's own and is not removed here. Nothing has been changed");
        return ExitStatus::Failed;
    }
    if (line.confirmation == CommandLine::Confirmation::Missing) {
        print(isJson ? removalPlanAsJson(agent) : removalPlanAsText(agent));
        return ExitStatus::Done;
    }
    m_cancellation.throwIfCancelled();
    const auto failure = removeLaunchAgent(agent, m_host, m_cancellation);
    // A removal that has begun is finished; only the wait for the service manager is given up.
    const auto status = failure && m_cancellation.isCancelled() ? ExitStatus::Cancelled : statusOf(failure);
    if (isJson)
        print(removalResultAsJson(agent, failure));
    else
        tell(removalResultAsText(agent, failure), status);
    return status;
}

} // namespace Korvane
