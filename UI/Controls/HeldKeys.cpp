// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/HeldKeys.h"

#include <QKeyEvent>
#include <QQuickWindow>

namespace Korvane {

HeldKeys::HeldKeys(QQuickItem* parent)
    : QQuickItem(parent)
{
    connect(this, &QQuickItem::windowChanged, this, [this](QQuickWindow* window) {
        if (window)
            window->installEventFilter(this);
    });
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QQuickItem::eventFilter(watched, event);
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (!key->isAutoRepeat())
        return false;
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    case Qt::Key_Space:
    case Qt::Key_Delete:
        return !isWriting();
    default:
        return false;
    }
}

bool HeldKeys::isWriting() const
{
    const QQuickItem* item = window() ? window()->activeFocusItem() : nullptr;
    return item && item->flags().testFlag(ItemAcceptsInputMethod);
}

} // namespace Korvane
