// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Tours/KeyboardPlace.h"

#include "Tests/UI/Support/AccessibleTree.h"
#include "Tests/UI/Support/Screen.h"

#include <QQmlProperty>
#include <QQuickItem>

namespace Korvane {

namespace {

bool isRing(const QQuickItem* item, const QColor& color)
{
    if (!item->inherits("QQuickRectangle"))
        return false;
    auto* rectangle = const_cast<QQuickItem*>(item);
    return QQmlProperty::read(rectangle, QStringLiteral("border.width")).toReal() > 0
        && QQmlProperty::read(rectangle, QStringLiteral("border.color")).value<QColor>() == color;
}

/// The ring that is drawn on an item or in it; null when none is.
const QQuickItem* ringIn(const QQuickItem* item, const QColor& color)
{
    if (!item->isVisible())
        return nullptr;
    if (isRing(item, color))
        return item;
    for (const QQuickItem* child : item->childItems()) {
        if (const QQuickItem* ring = ringIn(child, color))
            return ring;
    }
    return nullptr;
}

/// Whether nothing that cuts off what it holds cuts off anything of this.
bool isSeenWhole(const QQuickItem* item)
{
    const QRectF place = item->mapRectToScene(item->boundingRect());
    const auto holds = [&](const QRectF& frame) { return frame.adjusted(-1, -1, 1, 1).contains(place); };
    for (const QQuickItem* above = item->parentItem(); above != nullptr; above = above->parentItem()) {
        if (above->clip() && !holds(above->mapRectToScene(above->boundingRect())))
            return false;
    }
    return holds(QRectF(QPointF(), QSizeF(item->window()->size())));
}

/// The nearest name around an item.
QString nameAround(const QQuickItem* item)
{
    QString name;
    for (; item != nullptr && name.isEmpty(); item = item->parentItem())
        name = accessibleName(item);
    return name;
}

} // namespace

QString whyKeyboardIsLost(const QQuickWindow* window, const QColor& ring)
{
    if (window == nullptr)
        return QStringLiteral("no window has the keyboard");
    const QQuickItem* item = window->activeFocusItem();
    if (item == nullptr || item == window->contentItem())
        return QStringLiteral("nothing has the keyboard");
    const bool isChosenCommand = item->inherits("QQuickMenuItem") && item->property("highlighted").toBool();
    const QQuickItem* sign = isChosenCommand ? item : ringIn(item, ring);
    const QString title = QString::fromUtf8(item->metaObject()->className()) + u' ' + nameAround(item);
    if (sign == nullptr || !isShown(sign))
        return QStringLiteral("it does not show that it has the keyboard: ") + title;
    if (!isSeenWhole(sign))
        return QStringLiteral("what has the keyboard is out of view: ") + title;
    if (nameAround(sign).isEmpty())
        return QStringLiteral("what has the keyboard has no name: ") + title;
    return {};
}

} // namespace Korvane
