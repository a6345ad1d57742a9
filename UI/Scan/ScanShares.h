// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Scan/ScanFindings.h"

#include <QAbstractListModel>
#include <QString>
#include <QtQmlIntegration>

#include <cstdint>
#include <vector>

namespace Korvane {

/// What part of the found bytes each category has: a few entries in the order of the list, at most as many as there are
/// colours. Where there are more categories, the largest have an entry each and the others one together, at the end.
///
/// Main thread. Made once for the findings of a scan; ticking and scrolling do not touch it.
class ScanShares : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the findings of a scan")
    /// All entries in words: each title and size.
    Q_PROPERTY(QString summary READ summary NOTIFY changed FINAL)
    /// Whether there is more than one entry, so that the shares tell something.
    Q_PROPERTY(bool telling READ isTelling NOTIFY changed FINAL)

public:
    enum Role {
        TitleRole = Qt::UserRole,
        SizeRole, ///< Formatted.
        /// Between 0 and 1, all together 1: how much of a bar is the entry's. None is less than `leastShare`, however
        /// little it is, so that it is seen.
        ShareRole,
        ShadeRole, ///< Which colour, counted from 0; -1 for the others.
        FirstRowRole, ///< Where the entry begins in the list of findings.
    };
    Q_ENUM(Role)

    static constexpr int shades = 7;
    static constexpr double leastShare = 0.01;

    explicit ScanShares(QObject* parent = nullptr);

    void setFindings(const ScanFindings& findings);

    /// The colour of a category, by its place in the findings; -1 for one that is among the others.
    int shadeOf(std::size_t category) const { return m_shadeOfCategory[category]; }
    QString summary() const;
    bool isTelling() const { return m_entries.size() > 1; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    struct Entry {
        QString title;
        std::int64_t bytes = 0;
        double share = 0;
        int shade = -1;
        std::size_t firstRow = 0;
    };
    void nameLargest(const ScanFindings& findings);
    void gather(const ScanFindings& findings);
    void divide(std::int64_t totalBytes);

    std::vector<Entry> m_entries;
    std::vector<int> m_shadeOfCategory;
};

} // namespace Korvane
