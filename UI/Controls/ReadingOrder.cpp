// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/ReadingOrder.h"

#include <algorithm>

namespace Korvane {

ReadingOrder::ReadingOrder(QObject* parent)
    : QObject(parent)
{
    QAccessible::installActivationObserver(this);
}

ReadingOrder::~ReadingOrder() { QAccessible::removeActivationObserver(this); }

void ReadingOrder::accessibilityActiveChanged(bool isActive)
{
    m_isActive = isActive;
    moved();
}

void ReadingOrder::setOf(QQuickItem* of)
{
    if (m_of == of)
        return;
    if (m_of)
        m_of->disconnect(this);
    m_of = of;
    if (m_of)
        connect(m_of, &QQuickItem::childrenChanged, this, &ReadingOrder::moved);
    Q_EMIT ofChanged();
    moved();
}

void ReadingOrder::moved()
{
    if (m_isDue || !m_isActive)
        return;
    m_isDue = true;
    QMetaObject::invokeMethod(this, &ReadingOrder::sort, Qt::QueuedConnection);
}

qreal ReadingOrder::place(const QQuickItem* row) const
{
    constexpr qreal afterTheRowBefore = 0.5;
    return row->z() > 0 ? row->y() - m_rowHeight + afterTheRowBefore : row->y();
}

void ReadingOrder::sort()
{
    m_isDue = false;
    if (!m_of)
        return;
    const QList<QQuickItem*> before = m_of->childItems();
    for (const QQuickItem* row : before)
        connect(row, &QQuickItem::yChanged, this, &ReadingOrder::moved, Qt::UniqueConnection);
    QList<QQuickItem*> rows = before;
    std::stable_sort(rows.begin(), rows.end(),
        [this](const QQuickItem* one, const QQuickItem* other) { return place(one) < place(other); });
    if (rows == before)
        return;
    for (qsizetype i = 1; i < rows.size(); ++i)
        rows[i]->stackAfter(rows[i - 1]);
}

} // namespace Korvane
