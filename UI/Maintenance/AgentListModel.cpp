// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/AgentListModel.h"

#include "Platform/DisplayText.h"
#include "UI/Maintenance/MaintenanceTexts.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

namespace Korvane {

namespace {

using Place = std::vector<LaunchAgent>::difference_type;

// Two scans give one file two records.
bool areOfOneFile(const LaunchAgent& one, const LaunchAgent& other)
{
    return one.url == other.url && one.domain == other.domain;
}

} // namespace

void AgentListModel::setAgents(std::vector<LaunchAgent> agents)
{
    removeGone(agents);
    if (keepOrder(agents)) {
        insertNew(agents);
        m_agents = std::move(agents);
        if (!m_agents.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    } else {
        beginResetModel();
        m_agents = std::move(agents);
        endResetModel();
    }
}

void AgentListModel::removeGone(const std::vector<LaunchAgent>& agents)
{
    std::unordered_set<std::string> found;
    for (const LaunchAgent& agent : agents)
        found.insert(agent.url.native());
    const auto isGone = [&](const LaunchAgent& agent) { return found.count(agent.url.native()) == 0; };
    // From the end, one stretch of neighbours after the other.
    for (Place end = std::ssize(m_agents); end > 0; --end) {
        if (!isGone(m_agents[static_cast<std::size_t>(end - 1)]))
            continue;
        Place first = end - 1;
        while (first > 0 && isGone(m_agents[static_cast<std::size_t>(first - 1)]))
            --first;
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end - 1));
        m_agents.erase(m_agents.begin() + first, m_agents.begin() + end);
        endRemoveRows();
        end = first + 1;
    }
}

bool AgentListModel::keepOrder(const std::vector<LaunchAgent>& agents) const
{
    std::size_t matched = 0;
    for (const LaunchAgent& agent : agents) {
        if (matched < m_agents.size() && areOfOneFile(m_agents[matched], agent))
            ++matched;
    }
    return matched == m_agents.size();
}

void AgentListModel::insertNew(const std::vector<LaunchAgent>& agents)
{
    for (Place first = 0; first < std::ssize(agents);) {
        const auto isHere = [&](const LaunchAgent& agent) {
            return first < std::ssize(m_agents) && areOfOneFile(m_agents[static_cast<std::size_t>(first)], agent);
        };
        const Place end = std::find_if(agents.begin() + first, agents.end(), isHere) - agents.begin();
        if (end > first) {
            beginInsertRows({}, static_cast<int>(first), static_cast<int>(end - 1));
            m_agents.insert(m_agents.begin() + first, agents.begin() + first, agents.begin() + end);
            endInsertRows();
        }
        first = end + 1;
    }
}

const LaunchAgent* AgentListModel::agent(const QString& agentId) const
{
    const std::string id = agentId.toStdString();
    const auto found = std::find_if(
        m_agents.begin(), m_agents.end(), [&](const LaunchAgent& agent) { return agent.id.toString() == id; });
    return found == m_agents.end() ? nullptr : &*found;
}

int AgentListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_agents.size());
}

QVariant AgentListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LaunchAgent& agent = m_agents[static_cast<std::size_t>(index.row())];
    switch (role) {
    case AgentIdRole:
        return QString::fromStdString(agent.id.toString());
    case Qt::DisplayRole:
    case LabelRole:
        return MaintenanceTexts::label(agent);
    case DetailRole:
        return MaintenanceTexts::detail(agent);
    case PathRole:
        return QString::fromStdString(displayText(agent.url));
    case DomainRole:
        return MaintenanceTexts::domain(agent.domain);
    case RemovableRole:
        return agent.removable();
    default:
        return {};
    }
}

QHash<int, QByteArray> AgentListModel::roleNames() const
{
    return { { AgentIdRole, "agentId" }, { LabelRole, "label" }, { DetailRole, "detail" }, { PathRole, "path" },
        { DomainRole, "domain" }, { RemovableRole, "removable" } };
}

} // namespace Korvane
