// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/MaintenanceViewModel.h"

#include "Core/Maintenance/LaunchAgentsScanner.h"
#include "Core/Maintenance/MaintenanceRunner.h"
#include "UI/Background.h"
#include "UI/FilledText.h"
#include "UI/Maintenance/MaintenanceTexts.h"

#include <exception>
#include <utility>

namespace Korvane {

namespace {

TaskState stateAfterRunning(MaintenanceTask task, const Host& host, const Cancellation& cancellation)
{
    try {
        MaintenanceRunner::run(task, host, cancellation);
        return TaskState::done();
    } catch (const std::exception& error) {
        return TaskState::failed(QString::fromUtf8(error.what()));
    }
}

std::optional<std::vector<LaunchAgent>> agentsOf(const Host& host, const Cancellation& cancellation)
{
    try {
        return LaunchAgentsScanner().scan(host, cancellation);
    } catch (const CancellationError&) {
        return std::nullopt;
    }
}

TaskListModel::Missing missingOn(const Host& host)
{
    TaskListModel::Missing missing;
    for (const MaintenanceTask task : allMaintenanceTasks) {
        if (const std::optional<std::string> means = MaintenanceRunner::missingMeans(task, host))
            missing.emplace(task, QString::fromStdString(*means));
    }
    return missing;
}

} // namespace

MaintenanceViewModel::MaintenanceViewModel(Host host, std::shared_ptr<MaintenanceWork> work, QObject* parent)
    : QObject(parent)
    , m_module(CleanerModule::maintenance)
    , m_host(std::move(host))
    , m_work(std::move(work))
{
    connect(m_work.get(), &MaintenanceWork::removed, this, &MaintenanceViewModel::loadAgents);
}

MaintenanceViewModel::~MaintenanceViewModel() { m_search.cancel(); }

QString MaintenanceViewModel::agentsTitle() const { return tr("Background Items (%1)").arg(agents().size()); }

void MaintenanceViewModel::appear()
{
    lookForMeans();
    loadAgents();
}

void MaintenanceViewModel::lookForMeans()
{
    runInBackground(
        this, [host = m_host] { return missingOn(host); },
        [this](TaskListModel::Missing missing) { m_tasks.setMissing(std::move(missing)); });
}

void MaintenanceViewModel::runTask(const QString& taskId)
{
    if (const auto task = maintenanceTask(taskId.toStdString()))
        run(*task);
}

void MaintenanceViewModel::run(MaintenanceTask task)
{
    m_tasks.setState(task, TaskState::running());
    runInBackground(
        m_work->threads(), this,
        [task, host = m_host, cancellation = m_work->cancellation()] {
            return stateAfterRunning(task, host, cancellation);
        },
        [this, task](TaskState state) { m_tasks.setState(task, std::move(state)); });
}

void MaintenanceViewModel::loadAgents()
{
    m_search.cancel();
    m_search = Cancellation();
    const quint64 generation = ++m_generation;
    runInBackground(
        this, [host = m_host, cancellation = m_search] { return agentsOf(host, cancellation); },
        [this, generation](std::optional<std::vector<LaunchAgent>> agents) {
            if (generation == m_generation && agents)
                setAgents(std::move(*agents));
        });
}

void MaintenanceViewModel::remove(const LaunchAgent& agent)
{
    if (!agent.removable())
        return;
    m_work->remove(agent, m_host);
}

void MaintenanceViewModel::ask(const QString& agentId)
{
    const LaunchAgent* agent = m_agents.agent(agentId);
    if (!agent || !agent->removable())
        return;
    m_question = filledIn(tr("Remove %1?"), MaintenanceTexts::label(*agent));
    m_agentToRemove = *agent;
    Q_EMIT agentToRemoveChanged();
}

void MaintenanceViewModel::removeAsked()
{
    const std::optional<LaunchAgent> agent = m_agentToRemove;
    stopAsking();
    if (agent)
        remove(*agent);
}

void MaintenanceViewModel::stopAsking()
{
    m_agentToRemove.reset();
    Q_EMIT agentToRemoveChanged();
}

void MaintenanceViewModel::setAgents(std::vector<LaunchAgent> agents)
{
    m_agents.setAgents(std::move(agents));
    Q_EMIT agentsChanged();
}

} // namespace Korvane
