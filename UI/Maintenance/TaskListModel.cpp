// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/TaskListModel.h"

#include "UI/Maintenance/MaintenanceTexts.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Korvane {

void TaskListModel::setState(MaintenanceTask task, TaskState state)
{
    m_states.insert_or_assign(task, std::move(state));
    const auto place = std::find(allMaintenanceTasks.begin(), allMaintenanceTasks.end(), task);
    const int row = static_cast<int>(place - allMaintenanceTasks.begin());
    tellChange(row, row);
}

void TaskListModel::setMissing(Missing missing)
{
    m_missing = std::move(missing);
    tellChange(0, rowCount() - 1);
}

void TaskListModel::tellChange(int first, int last)
{
    Q_EMIT dataChanged(index(first), index(last), { StatusRole, MessageRole, RunnableRole });
}

TaskListModel::Status TaskListModel::status(MaintenanceTask task) const
{
    const auto state = m_states.find(task);
    if (state == m_states.end())
        return m_missing.count(task) > 0 ? Status::Unavailable : Status::NotRun;
    switch (state->second.kind) {
    case TaskState::Kind::Running:
        return Status::Running;
    case TaskState::Kind::Done:
        return Status::Done;
    case TaskState::Kind::Failed:
        return Status::Failed;
    }
    std::abort();
}

QString TaskListModel::message(MaintenanceTask task) const
{
    switch (status(task)) {
    case Status::Failed:
        return m_states.at(task).message;
    case Status::Unavailable:
        return m_missing.at(task);
    case Status::NotRun:
    case Status::Running:
    case Status::Done:
        return {};
    }
    std::abort();
}

int TaskListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(allMaintenanceTasks.size());
}

QVariant TaskListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const MaintenanceTask task = allMaintenanceTasks.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case TaskIdRole:
        return MaintenanceTexts::identity(task);
    case Qt::DisplayRole:
    case TitleRole:
        return MaintenanceTexts::title(task);
    case SubtitleRole:
        return MaintenanceTexts::subtitle(task);
    case SymbolRole:
        return MaintenanceTexts::symbol(task);
    case StatusRole:
        return QVariant::fromValue(static_cast<int>(status(task)));
    case MessageRole:
        return MaintenanceTexts::message(message(task));
    case RunnableRole:
        return status(task) != Status::Running && m_missing.count(task) == 0;
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskListModel::roleNames() const
{
    return { { TaskIdRole, "taskId" }, { TitleRole, "title" }, { SubtitleRole, "subtitle" }, { SymbolRole, "symbol" },
        { StatusRole, "status" }, { MessageRole, "message" }, { RunnableRole, "runnable" } };
}

} // namespace Korvane
