// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <vector>

namespace Korvane {

/// The background items that were found, as the rows of a list.
///
/// Main thread. Rows are known by the text of the agent's id. A row whose agent was found again stays where it is, so
/// that nothing jumps when one has gone.
class AgentListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a maintenance view model")

public:
    enum Role {
        AgentIdRole = Qt::UserRole,
        LabelRole,
        DetailRole, ///< The program that it runs, else where its file lies.
        PathRole, ///< Where its file lies, to be shown.
        DomainRole, ///< "User Agents"
        RemovableRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    /// Shows these, in their order.
    void setAgents(std::vector<LaunchAgent> agents);
    const std::vector<LaunchAgent>& agents() const { return m_agents; }
    /// The agent with this id; null when there is none. Valid until the next setAgents.
    const LaunchAgent* agent(const QString& agentId) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void removeGone(const std::vector<LaunchAgent>& agents);
    bool keepOrder(const std::vector<LaunchAgent>& agents) const;
    void insertNew(const std::vector<LaunchAgent>& agents);

    std::vector<LaunchAgent> m_agents;
};

} // namespace Korvane
