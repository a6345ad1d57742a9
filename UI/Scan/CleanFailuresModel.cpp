// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/CleanFailuresModel.h"

#include "Platform/DisplayText.h"
#include "UI/Background.h"

#include <utility>

namespace Korvane {

CleanFailuresModel::CleanFailuresModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_result(std::make_shared<const Cleaner::Result>())
{
}

CleanFailuresModel::~CleanFailuresModel() { releaseInBackground(std::move(m_result)); }

void CleanFailuresModel::setResult(std::shared_ptr<const Cleaner::Result> result)
{
    beginResetModel();
    m_result.swap(result);
    endResetModel();
    releaseInBackground(std::move(result));
}

int CleanFailuresModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_result->failures.size());
}

QVariant CleanFailuresModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Cleaner::Failure& failure = m_result->failures[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case PathRole:
        return QString::fromStdString(displayText(failure.url));
    case MessageRole:
        return QString::fromStdString(failure.message);
    default:
        return {};
    }
}

QHash<int, QByteArray> CleanFailuresModel::roleNames() const
{
    return { { PathRole, "path" }, { MessageRole, "message" } };
}

} // namespace Korvane
