// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <vector>

namespace Korvane {

/// What a cleaning could not remove, and why, as the rows of a list. Main thread.
class CleanFailuresModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a scan view model")

public:
    enum Role {
        PathRole = Qt::UserRole, ///< The whole path, to be shown.
        MessageRole, ///< The platform's own words.
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    void setFailures(std::vector<Cleaner::Failure> failures);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Cleaner::Failure> m_failures;
};

} // namespace Korvane
