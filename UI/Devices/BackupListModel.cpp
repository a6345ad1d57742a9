// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/BackupListModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/Devices/DeviceTexts.h"
#include "UI/ShortenedText.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Korvane {

namespace {

constexpr qsizetype longestPath = 512; ///< More than a reader takes in.

} // namespace

void BackupListModel::setBackups(std::vector<IOSBackup> backups)
{
    beginResetModel();
    m_backups = std::move(backups);
    endResetModel();
    Q_EMIT countChanged();
}

const IOSBackup* BackupListModel::backup(const QString& backupId) const
{
    const std::string id = backupId.toStdString();
    const auto found = std::find_if(
        m_backups.begin(), m_backups.end(), [&](const IOSBackup& backup) { return backup.id.toString() == id; });
    return found == m_backups.end() ? nullptr : &*found;
}

int BackupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_backups.size());
}

QVariant BackupListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const IOSBackup& backup = m_backups[static_cast<std::size_t>(index.row())];
    switch (role) {
    case BackupIdRole:
        return QString::fromStdString(backup.id.toString());
    case Qt::DisplayRole:
    case NameRole:
        return DeviceTexts::name(backup.deviceName);
    case DetailRole:
        return DeviceTexts::detail(backup);
    case PathRole:
        return shortened(backup.url.native(), longestPath, Cut::Middle);
    case SizeRole:
        return QString::fromStdString(formattedBytes(backup.sizeInBytes));
    default:
        return {};
    }
}

QHash<int, QByteArray> BackupListModel::roleNames() const
{
    return { { BackupIdRole, "backupId" }, { NameRole, "name" }, { DetailRole, "detail" }, { PathRole, "path" },
        { SizeRole, "size" } };
}

} // namespace Korvane
