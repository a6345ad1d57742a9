// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Devices/MediaListing.h"
#include "UI/Devices/MediaSelection.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace Korvane {

/// The camera roll as the rows of one flat list: every folder, and the files of those that are open below them.
///
/// Main thread. It holds the selection, because a tick is part of a row. The screen names a row by the positions of its
/// folder and file, which hold until another listing is set. Rows are made into text only when asked for; ticking a
/// whole folder announces its rows in one stretch.
class MediaTreeModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a media view model")

public:
    enum Role {
        FolderRole = Qt::UserRole, ///< The position of the folder.
        FileRole, ///< The position of the file in the folder; -1 in the row of the folder itself.
        NameRole,
        SymbolRole,
        CountRole, ///< Of a folder: how many files it has, with the word; else empty.
        TicksRole, ///< Qt::CheckState
        OpenRole, ///< Whether the folder shows its files.
    };
    Q_ENUM(Role)

    explicit MediaTreeModel(QObject* parent = nullptr);
    ~MediaTreeModel() override;

    /// Shows another listing. What was ticked and what was open is so again where it is still there; a folder that is
    /// the only one is open.
    void setListing(std::shared_ptr<const MediaListing> listing);
    const std::shared_ptr<const MediaListing>& listing() const { return m_listing; }
    const MediaSelection& selection() const { return m_selection; }

    /// Takes the ticks of these paths away.
    void untick(const std::vector<std::string>& paths);

    /// Each does nothing for a position that is not there.
    Q_INVOKABLE void toggleFile(int folder, int file);
    /// Ticks every file of a folder, or none when all are.
    Q_INVOKABLE void toggleFolder(int folder);
    Q_INVOKABLE void setOpen(int folder, bool open);
    /// Where the row is now that was at `former` before the listing that has just been set: its own, or that of the
    /// next that is still there, else of the one before; -1 when none is. Only while `listingReplaced` is told.
    Q_INVOKABLE int rowNow(int former) const;
    /// The row of a folder; -1 when it is not there.
    Q_INVOKABLE int rowOfFolder(int folder) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// After any change of what is ticked.
    void selectionChanged();
    /// Another listing has been set, and its rows are there.
    void listingReplaced();

private:
    /// A folder, or one of its files, by their positions.
    struct Position {
        std::size_t folder = 0;
        int file = -1;
    };
    /// What there was before the listing, as long as that is told.
    struct Former {
        std::shared_ptr<const MediaListing> listing;
        std::vector<int> rows;
    };

    static Position positionOf(const std::vector<int>& rows, int row);
    std::optional<int> rowOfFormer(int row) const;
    bool isFolder(int folder) const;
    int fileCount(std::size_t folder) const;
    void placeRows(std::size_t firstFolder);
    void tellTicks(int first, int last);
    QVariant folderData(std::size_t folder, int role) const;
    QVariant fileData(MediaListing::Place place, int role) const;
    Qt::CheckState ticks(std::size_t folder) const;

    std::shared_ptr<const MediaListing> m_listing;
    MediaSelection m_selection;
    std::vector<bool> m_open; ///< By folder.
    std::vector<int> m_rows; ///< Of each folder, in order, and behind them the number of all rows.
    Former m_former;
};

} // namespace Korvane
