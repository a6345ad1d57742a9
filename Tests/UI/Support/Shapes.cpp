// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/AccessibleChecks.h"
#include "Tests/UI/Support/AccessibleTree.h"

#include <QFont>

namespace Korvane {

namespace {

bool showsTheKeyboard(const QQuickItem* item)
{
    return QLatin1String(item->metaObject()->className()).startsWith(QLatin1String("FocusRing"));
}

QString shapeOf(const QQuickItem* item, const QQuickItem* in)
{
    if (item->inherits("QQuickText")) {
        const auto font = item->property("font").value<QFont>();
        return QStringLiteral("%1 in weight %2").arg(item->property("text").toString()).arg(int(font.weight()));
    }
    if (item->inherits("Korvane::Symbol"))
        return item->property("name").toString();
    if (item->inherits("QQuickRectangle")) {
        const QRectF place = item->mapRectToItem(in, item->boundingRect());
        return QStringLiteral("box at %1 of width %2").arg(qRound(place.x())).arg(qRound(place.width()));
    }
    return {};
}

void addShapes(const QQuickItem* item, const QQuickItem* in, QStringList& shapes)
{
    if (!isShown(item) || showsTheKeyboard(item))
        return;
    const QString shape = shapeOf(item, in);
    if (!shape.isEmpty())
        shapes.append(shape);
    for (const QQuickItem* child : item->childItems())
        addShapes(child, in, shapes);
}

} // namespace

QStringList shapesOf(const QQuickItem* item)
{
    QStringList shapes;
    addShapes(item, item, shapes);
    return shapes;
}

} // namespace Korvane
