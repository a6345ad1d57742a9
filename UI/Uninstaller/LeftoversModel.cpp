// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/LeftoversModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/DisplayText.h"

#include <utility>

namespace Korvane {

void LeftoversModel::setLeftovers(std::vector<ScanItem> leftovers)
{
    beginResetModel();
    m_leftovers = std::move(leftovers);
    endResetModel();
}

int LeftoversModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_leftovers.size());
}

QVariant LeftoversModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ScanItem& leftover = m_leftovers[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return QString::fromStdString(displayText(std::string_view(leftover.displayName)));
    case PathRole:
        return QString::fromStdString(displayText(leftover.url));
    case SizeRole:
        return QString::fromStdString(formattedBytes(leftover.sizeInBytes));
    default:
        return {};
    }
}

QHash<int, QByteArray> LeftoversModel::roleNames() const
{
    return { { NameRole, "name" }, { PathRole, "path" }, { SizeRole, "size" } };
}

} // namespace Korvane
