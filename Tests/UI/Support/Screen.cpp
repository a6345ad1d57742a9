// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/Screen.h"

#include <QAccessible>
#include <QTest>

#include <functional>

namespace Korvane {

namespace {

using Visit = std::function<bool(QQuickItem*)>;

// Stops where the visit answers true.
QQuickItem* walk(QQuickItem* item, const Visit& visit)
{
    if (!item->isVisible() || item->opacity() == 0)
        return nullptr;
    if (visit(item))
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = walk(child, visit))
            return found;
    }
    return nullptr;
}

} // namespace

QString accessibleName(const QObject* item)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(const_cast<QObject*>(item));
    return interface ? interface->text(QAccessible::Name) : QString();
}

QQuickItem* control(const QQuickWindow* window, const QString& name)
{
    const QList<QQuickItem*> found = controls(window, name);
    return found.isEmpty() ? nullptr : found.first();
}

QList<QQuickItem*> controls(const QQuickWindow* window, const QString& name)
{
    QList<QQuickItem*> found = itemsNamed(window, name);
    found.removeIf([](const QQuickItem* item) { return !item->activeFocusOnTab(); });
    return found;
}

QList<QQuickItem*> itemsNamed(const QQuickWindow* window, const QString& name)
{
    QList<QQuickItem*> found;
    walk(window->contentItem(), [&](QQuickItem* item) {
        if (accessibleName(item) == name)
            found.append(item);
        return false;
    });
    return found;
}

QStringList visibleTexts(const QQuickWindow* window)
{
    QStringList texts;
    walk(window->contentItem(), [&](QQuickItem* item) {
        if (item->inherits("QQuickText"))
            texts.append(item->property("text").toString());
        return false;
    });
    return texts;
}

void click(QQuickItem* item)
{
    const QPoint middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, middle);
}

QStringList tabOrder(QQuickWindow* window)
{
    QStringList names;
    QList<QQuickItem*> seen;
    for (;;) {
        QTest::keyClick(window, Qt::Key_Tab);
        QQuickItem* item = window->activeFocusItem();
        if (item == nullptr || seen.contains(item))
            return names;
        seen.append(item);
        names.append(accessibleName(item));
    }
}

} // namespace Korvane
