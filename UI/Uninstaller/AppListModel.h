// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/InstalledApp.h"

#include <QAbstractListModel>
#include <QString>
#include <QtQmlIntegration>

#include <optional>
#include <vector>

namespace Korvane {

/// The applications that were found, those that the search text leaves, and the selected one, as the rows of a list.
///
/// Main thread. Rows are known by the text of the application's id. The selection is an id, whether its row is shown,
/// or whether there is such an application, or not.
class AppListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to an uninstaller view model")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)

public:
    enum Role {
        AppIdRole = Qt::UserRole,
        NameRole,
        LeftoversTextRole, ///< "3 leftover items"
        SizeRole, ///< Of the application with its leftovers.
        IconRole, ///< What an Image is to show.
        SelectedRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    /// Shows these, in their order, under the search text that there is.
    void setApps(std::vector<InstalledApp> apps);
    const std::vector<InstalledApp>& apps() const { return m_apps; }

    void setSearchText(const QString& text);
    const QString& searchText() const { return m_searchText; }
    /// All applications when the search text is empty, else those whose name contains it; in order.
    std::vector<InstalledApp> filteredApps() const;

    void setSelectedAppID(std::optional<Uuid> id);
    std::optional<Uuid> selectedAppID() const { return m_selectedAppID; }
    /// The first of all applications with the selected id; null when there is none. Valid until the next setApps.
    const InstalledApp* selectedApp() const;

    int count() const { return static_cast<int>(m_rows.size()); }
    /// The row of the selected application; -1 when none is shown.
    int selectedRow() const;
    /// The id of the application in a row; nothing when there is no such row.
    std::optional<Uuid> idInRow(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void selectedRowChanged();

private:
    void filter();

    std::vector<InstalledApp> m_apps;
    std::vector<std::size_t> m_rows; ///< Positions in m_apps.
    QString m_searchText;
    std::optional<Uuid> m_selectedAppID;
};

} // namespace Korvane
