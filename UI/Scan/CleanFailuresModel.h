// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Cleaning/Cleaner.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <memory>

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

    explicit CleanFailuresModel(QObject* parent = nullptr);
    ~CleanFailuresModel() override;

    /// Shows the failures of this cleaning, which nobody changes any more.
    void setResult(std::shared_ptr<const Cleaner::Result> result);
    const Cleaner::Result& result() const { return *m_result; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::shared_ptr<const Cleaner::Result> m_result; ///< Shared, because a run may fail for very many items.
};

} // namespace Korvane
