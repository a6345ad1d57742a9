// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/MaintenanceTask.h"
#include "UI/Maintenance/TaskState.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <map>

namespace Korvane {

/// The maintenance tasks in their order, and how each stands, as the cards of a grid.
///
/// Main thread. Cards are known by the raw value of their task.
class TaskListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a maintenance view model")

public:
    /// What the status area of a card shows.
    enum class Status { NotRun, Running, Done, Failed, Unavailable };
    Q_ENUM(Status)

    enum Role {
        TaskIdRole = Qt::UserRole,
        TitleRole,
        SubtitleRole,
        SymbolRole,
        StatusRole,
        MessageRole, ///< What went wrong, or what is missing; empty otherwise.
        RunnableRole, ///< Whether it can be run now.
    };
    Q_ENUM(Role)

    /// What is missing for a task to be run on this machine; a task that is not named can be run.
    using Missing = std::map<MaintenanceTask, QString>;

    using QAbstractListModel::QAbstractListModel;

    /// How the tasks stand that have been run.
    const std::map<MaintenanceTask, TaskState>& states() const { return m_states; }
    void setState(MaintenanceTask task, TaskState state);
    void setMissing(Missing missing);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    Status status(MaintenanceTask task) const;
    QString message(MaintenanceTask task) const;
    void tellChange(int first, int last);

    std::map<MaintenanceTask, TaskState> m_states;
    Missing m_missing;
};

} // namespace Korvane
