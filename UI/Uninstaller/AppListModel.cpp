// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/AppListModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/DisplayText.h"
#include "Platform/TextSearch.h"
#include "UI/Uninstaller/ApplicationIconProvider.h"

#include <algorithm>
#include <utility>

namespace Korvane {

void AppListModel::setApps(std::vector<InstalledApp> apps)
{
    beginResetModel();
    m_apps = std::move(apps);
    filter();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT selectedRowChanged();
}

void AppListModel::setSearchText(const QString& text)
{
    if (m_searchText == text)
        return;
    beginResetModel();
    m_searchText = text;
    filter();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT selectedRowChanged();
}

void AppListModel::filter()
{
    m_rows.clear();
    const std::string text = m_searchText.toStdString();
    for (std::size_t i = 0; i < m_apps.size(); ++i) {
        if (text.empty() || localizedCaseInsensitiveContains(m_apps[i].name, text))
            m_rows.push_back(i);
    }
}

std::vector<InstalledApp> AppListModel::filteredApps() const
{
    std::vector<InstalledApp> filtered;
    filtered.reserve(m_rows.size());
    for (const std::size_t row : m_rows)
        filtered.push_back(m_apps[row]);
    return filtered;
}

void AppListModel::setSelectedAppID(std::optional<Uuid> id)
{
    if (m_selectedAppID == id)
        return;
    const int before = selectedRow();
    m_selectedAppID = id;
    for (const int row : { before, selectedRow() }) {
        if (row >= 0)
            Q_EMIT dataChanged(index(row), index(row), { SelectedRole });
    }
    Q_EMIT selectedRowChanged();
}

const InstalledApp* AppListModel::selectedApp() const
{
    if (!m_selectedAppID)
        return nullptr;
    const auto found = std::find_if(
        m_apps.begin(), m_apps.end(), [this](const InstalledApp& app) { return app.id == *m_selectedAppID; });
    return found == m_apps.end() ? nullptr : &*found;
}

int AppListModel::selectedRow() const
{
    if (!m_selectedAppID)
        return -1;
    const auto found = std::find_if(
        m_rows.begin(), m_rows.end(), [this](std::size_t row) { return m_apps[row].id == *m_selectedAppID; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

std::optional<Uuid> AppListModel::idInRow(int row) const
{
    if (row < 0 || row >= count())
        return std::nullopt;
    return m_apps[m_rows[static_cast<std::size_t>(row)]].id;
}

int AppListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QVariant AppListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const InstalledApp& app = m_apps[m_rows[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case AppIdRole:
        return QString::fromStdString(app.id.toString());
    case Qt::DisplayRole:
    case NameRole:
        return QString::fromStdString(displayText(std::string_view(app.name)));
    case LeftoversTextRole:
        return tr("%n leftover items", nullptr, static_cast<int>(app.leftovers.size()));
    case SizeRole:
        return QString::fromStdString(formattedBytes(app.totalSize()));
    case IconRole:
        return ApplicationIconProvider::source(app.id);
    case SelectedRole:
        return app.id == m_selectedAppID;
    default:
        return {};
    }
}

QHash<int, QByteArray> AppListModel::roleNames() const
{
    return { { AppIdRole, "appId" }, { NameRole, "name" }, { LeftoversTextRole, "leftoversText" }, { SizeRole, "size" },
        { IconRole, "iconSource" }, { SelectedRole, "selected" } };
}

} // namespace Korvane
