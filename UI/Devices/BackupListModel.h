// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Devices/IOSBackup.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <vector>

namespace Korvane {

/// The device backups on this computer, as the rows of a list.
///
/// Main thread. Rows are known by the text of the backup's id.
class BackupListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a device view model")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        BackupIdRole = Qt::UserRole,
        NameRole,
        DetailRole, ///< The version of the system and the day of the last backup, as far as they are known.
        PathRole, ///< Where it lies, to be shown.
        SizeRole, ///< Formatted.
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    void setBackups(std::vector<IOSBackup> backups);
    const std::vector<IOSBackup>& backups() const { return m_backups; }
    int count() const { return rowCount(); }
    /// The backup with this id; null when there is none.
    const IOSBackup* backup(const QString& backupId) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    std::vector<IOSBackup> m_backups;
};

} // namespace Korvane
