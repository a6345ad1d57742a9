// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/Columns.h"
#include "CLI/MaintenanceReports.h"
#include "Core/Maintenance/MaintenanceRunner.h"
#include "Platform/DisplayText.h"

#include <algorithm>

namespace Korvane {

namespace {

/// Anybody may have written a label or a program: a long one is cut, so that it does not push away what stands behind
/// it.
constexpr std::size_t widestLabel = 48;
constexpr std::size_t widestProgram = 120;
/// Wide enough for "System Daemons".
constexpr std::size_t domainWidth = 14;

std::string shown(std::string_view text) { return displayText(text); }

std::string shownLabel(const LaunchAgent& agent) { return elided(shown(agent.label), widestLabel); }

std::string shownProgram(std::string_view program) { return elided(shown(program), widestProgram); }

} // namespace

std::string tasksAsText(const Host& host)
{
    std::size_t nameWidth = 0, titleWidth = 0;
    for (const auto task : allMaintenanceTasks) {
        nameWidth = std::max(nameWidth, columns(rawValue(task)));
        titleWidth = std::max(titleWidth, columns(title(task)));
    }
    std::string text;
    for (const auto task : allMaintenanceTasks) {
        const auto missing = MaintenanceRunner::missingMeans(task, host);
        text += padded(rawValue(task), nameWidth) + "  " + padded(title(task), titleWidth) + "  "
            + std::string(subtitle(task)) + "\n";
        if (missing)
            text += std::string(nameWidth + 2, ' ') + "not here: " + *missing + "\n";
    }
    return text;
}

std::string taskResultAsText(MaintenanceTask task, const std::optional<std::string>& message)
{
    const std::string name(title(task));
    if (!message)
        return name + ": done";
    return name + (message->empty() ? ": failed" : ": " + shown(*message));
}

std::string agentsAsText(const std::vector<LaunchAgent>& agents)
{
    if (agents.empty())
        return "Nothing starts by itself.\n";
    std::size_t width = 0;
    for (const auto& agent : agents)
        width = std::max(width, columns(shownLabel(agent)));
    std::string text;
    for (const auto& agent : agents) {
        const std::string domain(displayText(agent.domain));
        text += padded(shownLabel(agent), width) + "  "
            + (agent.program ? padded(domain, domainWidth) + "  " + shownProgram(*agent.program) : domain) + "\n  "
            + displayText(agent.url) + "\n";
    }
    return text + "\nTotal: " + std::to_string(agents.size()) + (agents.size() == 1 ? " item\n" : " items\n");
}

std::string removalPlanAsText(const LaunchAgent& agent)
{
    const bool isStopped = agent.kind != LaunchAgent::Kind::Autostart;
    return std::string(isStopped ? "Would be stopped and moved" : "Would be moved") + " to the Trash:\n  "
        + displayText(agent.url) + "\n\n" + shownLabel(agent) + ". Nothing has been changed; --yes does it.\n";
}

std::string removalResultAsText(const LaunchAgent& agent, const std::optional<std::string>& message)
{
    return displayText(agent.url) + ": " + (message ? shown(*message) : "moved to the Trash");
}

} // namespace Korvane
