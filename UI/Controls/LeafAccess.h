// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleObject>
#include <QQuickItem>

namespace Korvane {

/// An item as a screen reader finds it, by its `Accessible` properties, with nothing in it. Main thread.
class LeafAccess : public QAccessibleObject {
public:
    explicit LeafAccess(QQuickItem* item);

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QWindow* window() const override;
    QRect rect() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

protected:
    QQuickItem* item() const { return static_cast<QQuickItem*>(object()); }
};

} // namespace Korvane
