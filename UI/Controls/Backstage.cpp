// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/Backstage.h"

#include <QAccessible>
#include <QQuickWindow>

#include <algorithm>

namespace Korvane {

namespace {

/// What dialogs and menus lie on in this window, as long as one of them is to be seen; null otherwise.
QQuickItem* shownOverlay(const QQuickWindow* window)
{
    const QList<QQuickItem*> items = window->contentItem()->childItems();
    const auto overlay = std::find_if(items.begin(), items.end(),
        [](const QQuickItem* item) { return item->inherits("QQuickOverlay") && item->isVisible(); });
    return overlay == items.end() ? nullptr : *overlay;
}

} // namespace

Backstage::Backstage(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

void Backstage::setClosed(bool closed)
{
    if (m_closed == closed)
        return;
    m_closed = closed;
    // Whoever is bound to it takes the pane into the tree, or out of it.
    Q_EMIT closedChanged();
    QAccessibleEvent event(this, closed ? QAccessible::ObjectShow : QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&event);
}

void Backstage::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemSceneChange && value.window != nullptr)
        connect(value.window, &QQuickWindow::activeFocusItemChanged, this, &Backstage::keepKeyboard,
            Qt::UniqueConnection);
    QQuickItem::itemChange(change, value);
}

void Backstage::keepKeyboard()
{
    follow(window()->activeFocusItem());
    if (m_isDue || !isKeyboardLost())
        return;
    m_isDue = true;
    QMetaObject::invokeMethod(this, &Backstage::takeKeyboard, Qt::QueuedConnection);
}

void Backstage::follow(QQuickItem* item)
{
    if (item == nullptr || item == m_last || !isAncestorOf(item))
        return;
    if (m_last)
        m_last->disconnect(this);
    m_last = item;
    if (const int changed = item->metaObject()->indexOfSignal("visualFocusChanged()"); changed >= 0)
        connect(item, item->metaObject()->method(changed), this,
            metaObject()->method(metaObject()->indexOfSlot("noteRing()")));
    noteRing();
}

void Backstage::noteRing()
{
    // One that has lost the keyboard shows it no more.
    if (m_last && m_last->hasActiveFocus())
        m_showed = m_last->property("visualFocus").toBool();
}

void Backstage::takeKeyboard()
{
    m_isDue = false;
    if (!isKeyboardLost())
        return;
    // What still fades away covers what is behind it.
    if (const QQuickItem* overlay = shownOverlay(window()))
        connect(overlay, &QQuickItem::visibleChanged, this, &Backstage::keepKeyboard, Qt::UniqueConnection);
    else
        setFocus(true, m_showed ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

bool Backstage::isKeyboardLost() const
{
    if (window() == nullptr || !window()->isActive())
        return false;
    const QQuickItem* item = window()->activeFocusItem();
    return item == nullptr || item == window()->contentItem();
}

} // namespace Korvane
