// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/LeafAccess.h"

#include "UI/Controls/Backstage.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickWindow>

namespace Korvane {

namespace {

QVariant attached(QQuickItem* item, const char* name)
{
    return QQmlProperty(item, QStringLiteral("Accessible.") + QLatin1String(name), qmlContext(item)).read();
}

bool isShown(const QQuickItem* item)
{
    if (item->window() == nullptr || !item->window()->isVisible() || !item->isVisible())
        return false;
    for (; item != nullptr; item = item->parentItem()) {
        if (qFuzzyIsNull(item->opacity()))
            return false;
    }
    return true;
}

} // namespace

LeafAccess::LeafAccess(QQuickItem* item)
    : QAccessibleObject(item)
{
}

QAccessibleInterface* LeafAccess::parent() const
{
    QQuickWindow* window = item()->window();
    if (window == nullptr)
        return nullptr;
    for (QQuickItem* above = item()->parentItem(); above != nullptr && above != window->contentItem();
         above = above->parentItem()) {
        const auto* backstage = qobject_cast<const Backstage*>(above);
        if (backstage != nullptr && !backstage->isClosed())
            continue;
        if (QAccessibleInterface* access = QAccessible::queryAccessibleInterface(above))
            return access;
    }
    return QAccessible::queryAccessibleInterface(window);
}

QWindow* LeafAccess::window() const { return item()->window(); }

QRect LeafAccess::rect() const
{
    if (item()->window() == nullptr)
        return {};
    const QRectF place = item()->mapRectToScene(QRectF(QPointF(), item()->size()));
    return { item()->window()->mapToGlobal(place.topLeft().toPoint()), place.size().toSize() };
}

QString LeafAccess::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return attached(item(), "name").toString();
    case QAccessible::Description:
        return attached(item(), "description").toString();
    default:
        return {};
    }
}

QAccessible::Role LeafAccess::role() const { return static_cast<QAccessible::Role>(attached(item(), "role").toInt()); }

QAccessible::State LeafAccess::state() const
{
    QAccessible::State state;
    state.invisible = !isShown(item());
    state.disabled = !item()->isEnabled();
    return state;
}

} // namespace Korvane
