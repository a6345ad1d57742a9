// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/ScanShares.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/FilledText.h"
#include "UI/Scan/CategoryTitle.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace Korvane {

namespace {

QString sizeText(std::int64_t bytes) { return QString::fromStdString(formattedBytes(bytes)); }

} // namespace

ScanShares::ScanShares(QObject* parent)
    : QAbstractListModel(parent)
{
}

void ScanShares::setFindings(const ScanFindings& findings)
{
    beginResetModel();
    m_entries.clear();
    nameLargest(findings);
    gather(findings);
    divide(findings.totalBytes());
    endResetModel();
    Q_EMIT changed();
}

void ScanShares::nameLargest(const ScanFindings& findings)
{
    const auto& categories = findings.categories();
    std::vector<std::size_t> named(categories.size());
    std::iota(named.begin(), named.end(), std::size_t{ 0 });
    if (named.size() > shades) {
        const auto end = named.begin() + (shades - 1);
        // Of two of one size the one that the list shows first.
        std::partial_sort(named.begin(), end, named.end(), [&](std::size_t one, std::size_t other) {
            const std::int64_t bytes = categories[one].totalBytes;
            return bytes != categories[other].totalBytes ? bytes > categories[other].totalBytes : one < other;
        });
        named.erase(end, named.end());
        std::sort(named.begin(), named.end());
    }
    m_shadeOfCategory.assign(categories.size(), -1);
    for (std::size_t shade = 0; shade < named.size(); ++shade)
        m_shadeOfCategory[named[shade]] = static_cast<int>(shade);
}

void ScanShares::gather(const ScanFindings& findings)
{
    Entry others;
    int count = 0;
    for (std::size_t index = 0; index < findings.categories().size(); ++index) {
        const ScanFindings::Category& category = findings.categories()[index];
        if (m_shadeOfCategory[index] >= 0) {
            m_entries.push_back(
                { categoryTitle(category.title), category.totalBytes, 0, m_shadeOfCategory[index], category.firstRow });
            continue;
        }
        if (count++ == 0)
            others.firstRow = category.firstRow;
        // No more than the findings' total, which has been added up with care.
        others.bytes += category.totalBytes;
    }
    if (count == 0)
        return;
    others.title = tr("%n others", nullptr, count);
    m_entries.push_back(others);
}

void ScanShares::divide(std::int64_t totalBytes)
{
    if (totalBytes <= 0)
        return;
    double large = 0;
    for (Entry& entry : m_entries) {
        entry.share = static_cast<double>(entry.bytes) / static_cast<double>(totalBytes);
        large += std::max(0.0, entry.share - leastShare);
    }
    const double ample = 1 - leastShare * static_cast<double>(m_entries.size());
    for (Entry& entry : m_entries)
        entry.share = leastShare + (large > 0 ? std::max(0.0, entry.share - leastShare) * ample / large : 0);
}

QString ScanShares::summary() const
{
    QStringList parts;
    for (const Entry& entry : m_entries)
        parts.append(filledIn(tr("%1: %2", "category: size"), entry.title, sizeText(entry.bytes)));
    return parts.join(QStringLiteral(", "));
}

int ScanShares::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant ScanShares::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return entry.title;
    case SizeRole:
        return sizeText(entry.bytes);
    case ShareRole:
        return entry.share;
    case ShadeRole:
        return entry.shade;
    case FirstRowRole:
        return static_cast<int>(entry.firstRow);
    default:
        return {};
    }
}

QHash<int, QByteArray> ScanShares::roleNames() const
{
    return { { TitleRole, "title" }, { SizeRole, "size" }, { ShareRole, "share" }, { ShadeRole, "shade" },
        { FirstRowRole, "firstRow" } };
}

} // namespace Korvane
