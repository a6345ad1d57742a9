// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/MediaTreeModel.h"

#include "UI/Background.h"
#include "UI/Devices/DeviceTexts.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Korvane {

MediaTreeModel::MediaTreeModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_listing(std::make_shared<const MediaListing>())
    , m_rows(1)
{
}

MediaTreeModel::~MediaTreeModel() { releaseInBackground(std::move(m_listing)); }

void MediaTreeModel::setListing(std::shared_ptr<const MediaListing> listing)
{
    std::unordered_set<std::string_view> wereOpen;
    for (std::size_t folder = 0; folder < m_open.size(); ++folder) {
        if (m_open[folder])
            wereOpen.insert(m_listing->folders()[folder].path);
    }
    beginResetModel();
    m_selection = m_selection.carriedOver(*m_listing, *listing);
    const std::vector<IOSMediaFolder>& folders = listing->folders();
    m_open.assign(folders.size(), folders.size() == 1);
    for (std::size_t folder = 0; folder < folders.size(); ++folder) {
        if (wereOpen.count(folders[folder].path) > 0)
            m_open[folder] = true;
    }
    m_former = { std::exchange(m_listing, std::move(listing)), m_rows };
    placeRows(0);
    endResetModel();
    Q_EMIT listingReplaced();
    releaseInBackground(std::exchange(m_former, {}).listing);
    Q_EMIT selectionChanged();
}

int MediaTreeModel::rowNow(int former) const
{
    const int count = m_former.rows.empty() ? 0 : m_former.rows.back();
    if (former < 0 || former >= count)
        return -1;
    for (int row = former; row < count; ++row) {
        if (const auto now = rowOfFormer(row))
            return *now;
    }
    for (int row = former - 1; row >= 0; --row) {
        if (const auto now = rowOfFormer(row))
            return *now;
    }
    return -1;
}

std::optional<int> MediaTreeModel::rowOfFormer(int row) const
{
    const Position position = positionOf(m_former.rows, row);
    const IOSMediaFolder& folder = m_former.listing->folders()[position.folder];
    if (position.file >= 0) {
        const auto place = m_listing->find(folder.files[static_cast<std::size_t>(position.file)].path);
        return place && m_open[place->folder] ? std::optional(m_rows[place->folder] + 1 + static_cast<int>(place->file))
                                              : std::nullopt;
    }
    const std::vector<IOSMediaFolder>& folders = m_listing->folders();
    const auto isSame = [&](const IOSMediaFolder& other) { return other.path == folder.path; };
    const auto found = std::find_if(folders.begin(), folders.end(), isSame);
    return found == folders.end() ? std::nullopt
                                  : std::optional(m_rows[static_cast<std::size_t>(found - folders.begin())]);
}

MediaTreeModel::Position MediaTreeModel::positionOf(const std::vector<int>& rows, int row)
{
    const auto after = std::upper_bound(rows.begin(), rows.end() - 1, row);
    const auto folder = static_cast<std::size_t>(after - rows.begin()) - 1;
    return { folder, row - rows[folder] - 1 };
}

void MediaTreeModel::placeRows(std::size_t firstFolder)
{
    m_rows.resize(m_open.size() + 1);
    for (std::size_t folder = firstFolder; folder < m_open.size(); ++folder)
        m_rows[folder + 1] = m_rows[folder] + 1 + (m_open[folder] ? fileCount(folder) : 0);
}

void MediaTreeModel::toggleFile(int folder, int file)
{
    if (!isFolder(folder) || file < 0 || file >= fileCount(static_cast<std::size_t>(folder)))
        return;
    const MediaListing::Place place{ static_cast<std::size_t>(folder), static_cast<std::size_t>(file) };
    m_selection.set(place, !m_selection.contains(place));
    const int folderRow = m_rows[place.folder];
    tellTicks(folderRow, folderRow);
    if (m_open[place.folder])
        tellTicks(folderRow + 1 + file, folderRow + 1 + file);
    Q_EMIT selectionChanged();
}

void MediaTreeModel::toggleFolder(int folder)
{
    if (!isFolder(folder))
        return;
    const auto index = static_cast<std::size_t>(folder);
    m_selection.setFolder(index, ticks(index) != Qt::Checked);
    tellTicks(m_rows[index], m_rows[index + 1] - 1);
    Q_EMIT selectionChanged();
}

void MediaTreeModel::untick(const std::vector<std::string>& paths)
{
    if (paths.empty() || rowCount() == 0)
        return;
    for (const std::string& path : paths) {
        if (const auto place = m_listing->find(path))
            m_selection.set(*place, false);
    }
    tellTicks(0, rowCount() - 1);
    Q_EMIT selectionChanged();
}

void MediaTreeModel::setOpen(int folder, bool open)
{
    if (!isFolder(folder) || m_open[static_cast<std::size_t>(folder)] == open)
        return;
    const auto index = static_cast<std::size_t>(folder);
    const int first = m_rows[index] + 1;
    const int last = m_rows[index] + fileCount(index);
    if (open)
        beginInsertRows({}, first, last);
    else
        beginRemoveRows({}, first, last);
    m_open[index] = open;
    placeRows(index);
    if (open)
        endInsertRows();
    else
        endRemoveRows();
    const QModelIndex row = this->index(first - 1);
    Q_EMIT dataChanged(row, row, { OpenRole });
}

int MediaTreeModel::rowOfFolder(int folder) const
{
    return isFolder(folder) ? m_rows[static_cast<std::size_t>(folder)] : -1;
}

bool MediaTreeModel::isFolder(int folder) const { return folder >= 0 && folder < static_cast<int>(m_open.size()); }

int MediaTreeModel::fileCount(std::size_t folder) const
{
    return static_cast<int>(m_listing->folders()[folder].files.size());
}

void MediaTreeModel::tellTicks(int first, int last) { Q_EMIT dataChanged(index(first), index(last), { TicksRole }); }

Qt::CheckState MediaTreeModel::ticks(std::size_t folder) const
{
    if (m_selection.count(folder) == 0)
        return Qt::Unchecked;
    return m_selection.count(folder) == m_listing->folders()[folder].files.size() ? Qt::Checked : Qt::PartiallyChecked;
}

int MediaTreeModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows.back(); }

QVariant MediaTreeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto [folder, file] = positionOf(m_rows, index.row());
    if (role == FolderRole)
        return static_cast<int>(folder);
    if (role == FileRole)
        return file;
    return file < 0 ? folderData(folder, role) : fileData({ folder, static_cast<std::size_t>(file) }, role);
}

QVariant MediaTreeModel::folderData(std::size_t index, int role) const
{
    const IOSMediaFolder& folder = m_listing->folders()[index];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return DeviceTexts::name(folder.name);
    case SymbolRole:
        return QStringLiteral("folder.fill");
    case CountRole:
        return DeviceTexts::files(folder.files.size());
    case TicksRole:
        return static_cast<int>(ticks(index));
    case OpenRole:
        return bool(m_open[index]);
    default:
        return {};
    }
}

QVariant MediaTreeModel::fileData(MediaListing::Place place, int role) const
{
    const IOSMediaFile& file = m_listing->file(place);
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return DeviceTexts::name(file.name);
    case SymbolRole:
        return DeviceTexts::symbol(file);
    case CountRole:
        return QString();
    case TicksRole:
        return static_cast<int>(m_selection.contains(place) ? Qt::Checked : Qt::Unchecked);
    case OpenRole:
        return false;
    default:
        return {};
    }
}

QHash<int, QByteArray> MediaTreeModel::roleNames() const
{
    return { { FolderRole, "folder" }, { FileRole, "file" }, { NameRole, "name" }, { SymbolRole, "symbol" },
        { CountRole, "count" }, { TicksRole, "ticks" }, { OpenRole, "open" } };
}

} // namespace Korvane
