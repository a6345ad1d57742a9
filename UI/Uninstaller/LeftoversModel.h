// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <vector>

namespace Korvane {

/// What the selected application has left behind, as the rows of a list. Main thread.
class LeftoversModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to an uninstaller view model")

public:
    enum Role {
        NameRole = Qt::UserRole,
        PathRole, ///< The whole path, to be shown.
        SizeRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    void setLeftovers(std::vector<ScanItem> leftovers);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<ScanItem> m_leftovers;
};

} // namespace Korvane
