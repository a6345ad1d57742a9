// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>
#include <QHash>
#include <QList>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

namespace Korvane {

/// Whether an item is drawn: it and all that it is in are visible, and none is transparent.
bool isShown(const QQuickItem* item);

/// A text as it is read out: without marks of direction, and with single blanks.
QString spoken(const QString& text);

/// One thing that a screen reader finds in a window.
struct AccessibleNode {
    QAccessibleInterface* interface;
    QQuickItem* item;
    QQuickItem* above; ///< What it is in; null for the outermost.
    int depth;

    QAccessible::Role role() const { return interface->role(); }
    QAccessible::State state() const { return interface->state(); }
    QString name() const { return spoken(interface->text(QAccessible::Name)); }
    QString description() const { return spoken(interface->text(QAccessible::Description)); }
    QStringList actions() const;
    /// Whether a person acts on it, by pressing it or by bringing the keyboard to it.
    bool isActive() const;
    /// How a failure calls it.
    QString title() const;
};

/// What a screen reader finds in a window, from the outside to the inside, without what is invisible to it. QAccessible
/// must be active.
class AccessibleTree {
public:
    explicit AccessibleTree(QQuickWindow* window);

    const QList<AccessibleNode>& nodes() const { return m_nodes; }
    /// Null for what is not in the tree.
    const AccessibleNode* node(const QQuickItem* item) const;
    /// The nearest that is in the tree and has one of these roles, the item itself or around it; null for none.
    const AccessibleNode* around(const QQuickItem* item, const QList<QAccessible::Role>& roles) const;
    /// What is in the tree and not told to be invisible although it is not drawn, or the other way round.
    const QStringList& liesAboutVisibility() const { return m_lies; }
    /// The whole tree, a line each, for people.
    QString outline() const;

private:
    void add(QAccessibleInterface* interface, QQuickItem* above, int depth);

    QList<AccessibleNode> m_nodes;
    QHash<const QQuickItem*, int> m_places;
    QStringList m_lies;
};

} // namespace Korvane
