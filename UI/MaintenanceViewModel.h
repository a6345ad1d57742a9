// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Core/Maintenance/MaintenanceTask.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"
#include "UI/Maintenance/AgentListModel.h"
#include "UI/Maintenance/MaintenanceWork.h"
#include "UI/Maintenance/TaskListModel.h"
#include "UI/ModuleViewModel.h"

#include <QObject>
#include <QtQmlIntegration>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace Korvane {

/// Has maintenance tasks carried out, lists what starts by itself, and removes what of it is the user's own.
///
/// Main thread. Tasks run on threads of their own, and as long as those live, whether the screen still exists or not;
/// the rest runs on the `backgroundThreads`. Destroying it cancels a search for background items; a removal that has
/// begun is always finished.
class MaintenanceViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application, one for each screen")
    Q_PROPERTY(Korvane::ModuleViewModel* module READ module CONSTANT)
    Q_PROPERTY(Korvane::TaskListModel* taskRows READ taskRows CONSTANT)
    Q_PROPERTY(Korvane::AgentListModel* agentRows READ agentRows CONSTANT)
    Q_PROPERTY(QString agentsTitle READ agentsTitle NOTIFY agentsChanged)
    /// Whether the user is asked if an agent is to be removed.
    Q_PROPERTY(bool asking READ isAsking NOTIFY agentToRemoveChanged)
    Q_PROPERTY(QString question READ question NOTIFY agentToRemoveChanged)

public:
    using TaskState = Korvane::TaskState;

    /// The tasks run on `work`, and are ended with it.
    MaintenanceViewModel(Host host, std::shared_ptr<MaintenanceWork> work, QObject* parent = nullptr);
    ~MaintenanceViewModel() override;

    ModuleViewModel* module() { return &m_module; }
    /// How the tasks stand; one without an entry has not been run since this was made.
    const std::map<MaintenanceTask, TaskState>& taskStates() const { return m_tasks.states(); }
    const std::vector<LaunchAgent>& agents() const { return m_agents.agents(); }
    TaskListModel* taskRows() { return &m_tasks; }
    AgentListModel* agentRows() { return &m_agents; }
    QString agentsTitle() const;
    /// The agent that the user is asked about; as it was found, whatever has been found since.
    const std::optional<LaunchAgent>& agentToRemove() const { return m_agentToRemove; }
    bool isAsking() const { return m_agentToRemove.has_value(); }
    /// What the user is asked, or was asked last.
    const QString& question() const { return m_question; }

    /// The screen is shown: looks for background items, and for what the tasks need.
    Q_INVOKABLE void appear();
    /// Runs a task; also one that already runs, so that the screen must not offer that.
    void run(MaintenanceTask task);
    /// The same by its raw value; nothing for any other text.
    Q_INVOKABLE void runTask(const QString& taskId);
    /// Looks for the background items afresh; a search that is still under way is never heard of again.
    void loadAgents();
    /// Stops an agent and moves its file to the Trash, then looks for them all again. Nothing for one that is not
    /// removable. What goes wrong is not told: the list shows what is left.
    void remove(const LaunchAgent& agent);

    /// Asks about the agent with this id, if there is one that is removable.
    Q_INVOKABLE void ask(const QString& agentId);
    /// Removes the agent that is asked about, and asks no more.
    Q_INVOKABLE void removeAsked();
    /// The question has been answered, or put away.
    Q_INVOKABLE void stopAsking();

Q_SIGNALS:
    void agentsChanged();
    void agentToRemoveChanged();

private:
    void lookForMeans();
    void setAgents(std::vector<LaunchAgent> agents);

    ModuleViewModel m_module;
    const Host m_host;
    std::shared_ptr<MaintenanceWork> m_work;
    TaskListModel m_tasks;
    AgentListModel m_agents;
    std::optional<LaunchAgent> m_agentToRemove;
    QString m_question;
    Cancellation m_search; ///< Of the search for background items that is under way.
    quint64 m_generation = 0; ///< Of that search; what any other brings is stale.
};

} // namespace Korvane
