// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/LaunchAgent.h"

#include "Core/HashCombination.h"

#include <cstdlib>
#include <utility>

namespace Korvane {

LaunchAgent::LaunchAgent(std::filesystem::path agentUrl, std::string agentLabel,
    std::optional<std::string> agentProgram, Domain agentDomain, Kind agentKind)
    : id(Uuid::random())
    , url(std::move(agentUrl))
    , label(std::move(agentLabel))
    , program(std::move(agentProgram))
    , domain(agentDomain)
    , kind(agentKind)
{
}

bool LaunchAgent::removable() const { return domain == Domain::User; }

std::string_view displayText(LaunchAgent::Domain domain)
{
    switch (domain) {
    case LaunchAgent::Domain::User:
        return "User Agents";
    case LaunchAgent::Domain::SystemAgents:
        return "System Agents";
    case LaunchAgent::Domain::SystemDaemons:
        return "System Daemons";
    }
    std::abort();
}

} // namespace Korvane

std::size_t std::hash<Korvane::LaunchAgent>::operator()(const Korvane::LaunchAgent& agent) const noexcept
{
    Korvane::HashCombination combination;
    combination.add(agent.id);
    combination.add(agent.url.native());
    combination.add(agent.label);
    combination.add(agent.program);
    combination.add(agent.domain);
    combination.add(agent.kind);
    return combination.value();
}
