// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace Korvane {

/// Keeps what lies on an item in the order of its places, from the top, while a screen reader is there: it reads rows
/// as they follow each other in the tree of items, and a list of Qt puts them there as it happens to make them, a
/// heading after its first row. Main thread.
class ReadingOrder : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT
    /// What the rows lie on: the content of a list. Headings lie above them, by their z.
    Q_PROPERTY(QQuickItem* of READ of WRITE setOf NOTIFY ofChanged FINAL REQUIRED)
    /// How high a row is: one that is partly under a heading that stays at the top is read after it.
    Q_PROPERTY(qreal rowHeight MEMBER m_rowHeight FINAL REQUIRED)

public:
    explicit ReadingOrder(QObject* parent = nullptr);
    ~ReadingOrder() override;

    QQuickItem* of() const { return m_of; }
    void setOf(QQuickItem* of);
Q_SIGNALS:
    void ofChanged();

private:
    void accessibilityActiveChanged(bool isActive) override;
    /// Has the rows sorted soon, together with whatever moves meanwhile.
    void moved();
    void sort();
    qreal place(const QQuickItem* row) const;

    QPointer<QQuickItem> m_of;
    qreal m_rowHeight = 0;
    bool m_isActive = QAccessible::isActive();
    bool m_isDue = false;
};

} // namespace Korvane
