// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanResultsModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/DisplayText.h"
#include "UI/Background.h"
#include "UI/Scan/CategoryTitle.h"

#include <optional>
#include <utility>

namespace Korvane {

namespace {

QString shown(const std::filesystem::path& path) { return QString::fromStdString(displayText(path)); }

QString idText(const Uuid& id) { return QString::fromStdString(id.toString()); }

std::optional<Uuid> idFromText(const QString& text)
{
    const QString digits = QString(text).remove(QLatin1Char('-'));
    bool highIsNumber = false;
    bool lowIsNumber = false;
    const Uuid id{ digits.left(16).toULongLong(&highIsNumber, 16), digits.mid(16).toULongLong(&lowIsNumber, 16) };
    if (digits.size() != 32 || !highIsNumber || !lowIsNumber)
        return std::nullopt;
    return id;
}

} // namespace

ScanResultsModel::ScanResultsModel(std::filesystem::path home, QObject* parent)
    : QAbstractListModel(parent)
    , m_home(std::move(home))
    , m_findings(std::make_shared<const ScanFindings>())
{
}

ScanResultsModel::~ScanResultsModel()
{
    m_selection = ScanSelection();
    releaseInBackground(std::move(m_findings));
}

void ScanResultsModel::setFindings(std::shared_ptr<const ScanFindings> findings, ScanSelection selection)
{
    beginResetModel();
    m_selection = std::move(selection);
    m_findings.swap(findings);
    m_shares.setFindings(*m_findings);
    endResetModel();
    releaseInBackground(std::move(findings));
    Q_EMIT ticksChanged();
}

void ScanResultsModel::clear()
{
    if (!m_findings->items().empty())
        setFindings(std::make_shared<const ScanFindings>(), ScanSelection());
}

void ScanResultsModel::setTicked(const Uuid& id, bool ticked)
{
    if (const auto index = m_findings->indexOf(id))
        setTickedItem(*index, ticked);
}

void ScanResultsModel::setTicked(const QString& itemId, bool ticked)
{
    if (const auto id = idFromText(itemId))
        setTicked(*id, ticked);
}

void ScanResultsModel::setTickedItem(std::size_t itemIndex, bool ticked)
{
    if (m_selection.containsItem(itemIndex) == ticked)
        return;
    m_selection.setItem(itemIndex, ticked);
    const QModelIndex row = index(static_cast<int>(m_findings->rowOf(itemIndex)));
    Q_EMIT dataChanged(row, row, { TickedRole });
    Q_EMIT ticksChanged();
}

void ScanResultsModel::setAllTicked(bool ticked)
{
    if (m_findings->items().empty())
        return;
    m_selection.setAll(ticked);
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), { TickedRole });
    Q_EMIT ticksChanged();
}

void ScanResultsModel::toggleCategory(const QString& title)
{
    const auto found = m_findings->categoryNamed(title.toStdString());
    if (!found)
        return;
    m_selection.toggleCategory(*found);
    const ScanFindings::Category& rows = m_findings->categories()[*found];
    const auto lastRow = static_cast<int>(rows.firstRow + rows.itemCount) - 1;
    Q_EMIT dataChanged(index(static_cast<int>(rows.firstRow)), index(lastRow), { TickedRole });
    Q_EMIT ticksChanged();
}

ScanCategory ScanResultsModel::category(const QString& title) const
{
    ScanCategory summary;
    if (const auto found = m_findings->categoryNamed(title.toStdString())) {
        const ScanFindings::Category& category = m_findings->categories()[*found];
        summary.title = categoryTitle(category.title);
        summary.sizeText = QString::fromStdString(formattedBytes(category.totalBytes));
        summary.itemCount = static_cast<int>(category.itemCount);
        summary.tickedCount = static_cast<int>(m_selection.sizeInCategory(*found));
        summary.shade = m_shares.shadeOf(*found);
    }
    return summary;
}

const ScanItem* ScanResultsModel::item(const QString& itemId) const
{
    const auto id = idFromText(itemId);
    const auto index = id ? m_findings->indexOf(*id) : std::nullopt;
    return index ? &m_findings->items()[*index] : nullptr;
}

QString ScanResultsModel::folderText(const ScanItem& item) const
{
    const std::filesystem::path folder = item.url.parent_path();
    const std::string& home = m_home.native();
    const std::string& whole = folder.native();
    const bool isBelowHome = !home.empty() && whole.compare(0, home.size(), home) == 0
        && (whole.size() == home.size() || whole[home.size()] == '/');
    if (!isBelowHome)
        return shown(folder);
    return QLatin1Char('~') + QString::fromStdString(displayText(std::string_view(whole).substr(home.size())));
}

QString ScanResultsModel::sharedHelp(const ScanItem& item) const
{
    const auto shared = m_findings->sharedStorageOf(item.id);
    if (!shared)
        return {};
    switch (*shared) {
    case SharedStorage::OneFile:
        return tr("All files of this set are one file under several names: removing copies frees no space.");
    case SharedStorage::OneName:
        return tr("Another path of this set leads to this same file: cleaning one removes both.");
    }
    return {};
}

int ScanResultsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings->items().size());
}

QVariant ScanResultsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::size_t itemIndex = m_findings->itemInRow(static_cast<std::size_t>(index.row()));
    const ScanItem& item = m_findings->items()[itemIndex];
    switch (role) {
    case ItemIdRole:
        return idText(item.id);
    case Qt::DisplayRole:
    case NameRole:
        return QString::fromStdString(item.displayName);
    case FolderRole:
        return folderText(item);
    case PathRole:
        return shown(item.url);
    case SizeRole:
        return QString::fromStdString(formattedBytes(item.sizeInBytes));
    case CategoryRole:
        return QString::fromStdString(item.category);
    case TickedRole:
        return m_selection.containsItem(itemIndex);
    case ShieldedRole:
        return !item.selectableByDefault;
    case SharedHelpRole:
        return sharedHelp(item);
    default:
        return {};
    }
}

QHash<int, QByteArray> ScanResultsModel::roleNames() const
{
    return { { ItemIdRole, "itemId" }, { NameRole, "name" }, { FolderRole, "folder" }, { PathRole, "path" },
        { SizeRole, "size" }, { CategoryRole, "category" }, { TickedRole, "ticked" }, { ShieldedRole, "shielded" },
        { SharedHelpRole, "sharedHelp" } };
}

} // namespace Korvane
