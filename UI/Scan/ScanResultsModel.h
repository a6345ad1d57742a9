// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Scan/ScanCategory.h"
#include "UI/Scan/ScanSelection.h"
#include "UI/Scan/ScanShares.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <filesystem>
#include <memory>

namespace Korvane {

/// The findings of a scan as the rows of a list, category by category, each with its tick.
///
/// Main thread. It holds the selection, because a tick is part of a row. Rows are made into text only when asked for.
class ScanResultsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a scan view model")
    Q_PROPERTY(Korvane::ScanShares* shares READ shares CONSTANT FINAL)

public:
    enum Role {
        ItemIdRole = Qt::UserRole, ///< The identity, as text, by which the screen names an item.
        NameRole,
        FolderRole, ///< Where the item lies, with the home folder written "~".
        PathRole, ///< The whole path, to be shown.
        SizeRole, ///< Formatted.
        CategoryRole,
        TickedRole,
        ShieldedRole, ///< Whether the item is one that is not selected by default.
        SharedHelpRole, ///< What cleaning an item does that shares its storage with others; empty for most.
    };
    Q_ENUM(Role)

    /// `home` is what the folder texts abbreviate.
    explicit ScanResultsModel(std::filesystem::path home, QObject* parent = nullptr);
    ~ScanResultsModel() override;

    /// Shows these findings, exactly the items selectable by default being ticked.
    void setFindings(std::shared_ptr<const ScanFindings> findings, ScanSelection selection);
    /// Shows nothing.
    void clear();

    const ScanFindings& findings() const { return *m_findings; }
    const ScanSelection& selection() const { return m_selection; }
    /// What part of it all each category has.
    ScanShares* shares() { return &m_shares; }

    /// Each announces the rows that changed; an identity that is not of these findings changes nothing.
    void setTicked(const Uuid& id, bool ticked);
    void setAllTicked(bool ticked);
    Q_INVOKABLE void setTicked(const QString& itemId, bool ticked);
    /// Ticks what a scan would tick of the category with this title, or unticks all of it: see ScanSelection.
    Q_INVOKABLE void toggleCategory(const QString& title);

    /// Sums of the category with this title; empty ones when there is none.
    Q_INVOKABLE Korvane::ScanCategory category(const QString& title) const;

    /// The item with this identity as text; null when it is not among the findings.
    const ScanItem* item(const QString& itemId) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// After any change of which items are ticked.
    void ticksChanged();

private:
    void setTickedItem(std::size_t itemIndex, bool ticked);
    QString folderText(const ScanItem& item) const;
    QString sharedHelp(const ScanItem& item) const;

    std::filesystem::path m_home;
    std::shared_ptr<const ScanFindings> m_findings;
    ScanSelection m_selection;
    ScanShares m_shares;
};

} // namespace Korvane
