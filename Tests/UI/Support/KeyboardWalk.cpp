// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/AccessibleChecks.h"
#include "Tests/UI/Support/AccessibleTree.h"

#include <QGuiApplication>
#include <QImage>
#include <QLineF>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <functional>

namespace Korvane {

namespace {

/// What has the keyboard at each stop of Tab: the stop itself, or, in a list, a row of it.
using Holders = QHash<QQuickItem*, QPointer<QQuickItem>>;

/// A picture of the window while a stop has the keyboard, and where in it every holder is.
struct Picture {
    QQuickItem* stop;
    QImage image;
    QHash<QQuickItem*, QRectF> places;
};

QRectF placeOf(const QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }

void collectStops(QQuickItem* item, QList<QQuickItem*>& stops)
{
    if (!isShown(item) || !item->isEnabled())
        return;
    if (item->activeFocusOnTab())
        stops.append(item);
    for (QQuickItem* child : item->childItems())
        collectStops(child, stops);
}

// What Tab stays in: a dialog, while there is one.
QQuickItem* rangeOfTab(const QQuickWindow* window)
{
    for (QQuickItem* item = window->activeFocusItem(); item != nullptr; item = item->parentItem()) {
        if (item->inherits("QQuickPopupItem"))
            return item;
    }
    return window->contentItem();
}

// The keyboard in a list is on one of its rows.
QQuickItem* stopOf(QQuickItem* item, const QList<QQuickItem*>& stops)
{
    while (item != nullptr && !stops.contains(item))
        item = item->parentItem();
    return item;
}

QString nameOf(QQuickItem* item)
{
    if (item == nullptr)
        return QStringLiteral("nothing");
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(item);
    return QStringLiteral("%1 (%2)").arg(
        interface ? interface->text(QAccessible::Name) : QString(), QLatin1String(item->metaObject()->className()));
}

QStringList names(const QList<QQuickItem*>& items)
{
    QStringList result;
    std::transform(items.begin(), items.end(), std::back_inserter(result), nameOf);
    return result;
}

bool inOneRow(const QRectF& a, const QRectF& b)
{
    const qreal shared = std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top());
    return shared > std::min(a.height(), b.height()) / 2;
}

/// Whether the place is read after all that were read before: further on in the row, below, or in the next column.
bool follows(const QRectF& place, const QList<QRectF>& before)
{
    const QRectF& last = before.last();
    if (inOneRow(last, place) && place.left() > last.left())
        return true;
    if (place.top() >= last.bottom() - 4)
        return true;
    return std::all_of(
        before.begin(), before.end(), [&](const QRectF& read) { return place.left() >= read.right() - 4; });
}

QRectF fromLeading(QRectF place, qreal width)
{
    if (QGuiApplication::isRightToLeft())
        place.moveLeft(width - place.right());
    return place;
}

QStringList orderProblems(const QList<QQuickItem*>& way, const QHash<QQuickItem*, QRectF>& places, qreal width)
{
    QStringList problems;
    QList<QRectF> before;
    for (QQuickItem* item : way) {
        const QRectF place = fromLeading(places.value(item), width);
        if (!before.isEmpty() && !follows(place, before))
            problems.append(QStringLiteral("Tab does not lead on as one reads, at ") + nameOf(item));
        before.append(place);
    }
    return problems;
}

/// Where Tab, or Shift and Tab, leads from where the keyboard is, until it leads nowhere new; that is the last one.
QList<QQuickItem*> pressThrough(
    QQuickWindow* window, const QList<QQuickItem*>& stops, Qt::Key key, const std::function<void(QQuickItem*)>& reached)
{
    QList<QQuickItem*> way;
    for (;;) {
        QQuickItem* stop = stopOf(window->activeFocusItem(), stops);
        const bool known = stop == nullptr || way.contains(stop);
        way.append(stop);
        if (known)
            return way;
        reached(stop);
        QTest::keyClick(window, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

Picture takePicture(QQuickWindow* window, QQuickItem* stop, const Holders& holders)
{
    Picture picture{ stop, window->grabWindow(), {} };
    for (auto holder = holders.begin(); holder != holders.end(); ++holder) {
        if (holder.value())
            picture.places.insert(holder.key(), placeOf(holder.value()));
    }
    return picture;
}

int differentPixels(const QImage& a, QPoint inA, const QImage& b, QPoint inB, QSize size)
{
    int different = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QPoint offset(x, y);
            if (!a.valid(inA + offset) || !b.valid(inB + offset))
                continue;
            const QRgb one = a.pixel(inA + offset);
            const QRgb other = b.pixel(inB + offset);
            constexpr int noticeable = 24;
            different += std::abs(qRed(one) - qRed(other)) > noticeable
                || std::abs(qGreen(one) - qGreen(other)) > noticeable
                || std::abs(qBlue(one) - qBlue(other)) > noticeable;
        }
    }
    return different;
}

/// Whether a stop is drawn differently while it has the keyboard and while the one that is furthest off has it.
bool showsKeyboard(const Picture& with, const QList<Picture>& pictures)
{
    const QRectF own = with.places.value(with.stop);
    const auto distance = [&](const Picture& picture) {
        return QLineF(picture.places.value(picture.stop).center(), own.center()).length();
    };
    const auto without = std::max_element(pictures.begin(), pictures.end(),
        [&](const Picture& a, const Picture& b) { return distance(a) < distance(b); });
    constexpr int reach = 6;
    const qreal scale = with.image.devicePixelRatio();
    const QPointF corner(-reach, -reach);
    const QSizeF size = own.size() + QSizeF(2 * reach, 2 * reach);
    const int different = differentPixels(with.image, ((own.topLeft() + corner) * scale).toPoint(), without->image,
        ((without->places.value(with.stop).topLeft() + corner) * scale).toPoint(), (size * scale).toSize());
    return different >= (own.width() + own.height()) / 2;
}

} // namespace

QStringList keyboardProblems(QQuickWindow* window)
{
    QQuickItem* range = rangeOfTab(window);
    QList<QQuickItem*> stops;
    collectStops(range, stops);
    QQuickItem* first = stopOf(range->nextItemInFocusChain(true), stops);
    if (first == nullptr)
        return { QStringLiteral("nothing takes the keyboard") };
    QHash<QQuickItem*, QRectF> places;
    for (QQuickItem* stop : stops)
        places.insert(stop, placeOf(stop));

    first->forceActiveFocus(Qt::TabFocusReason);
    QStringList problems;
    Holders holders;
    QList<QQuickItem*> way = pressThrough(window, stops, Qt::Key_Tab, [&](QQuickItem* stop) {
        holders.insert(stop, window->activeFocusItem());
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(window->activeFocusItem());
        if (interface == nullptr || !interface->state().focused || !interface->state().focusable)
            problems.append(QStringLiteral("has the keyboard and does not tell: ") + nameOf(window->activeFocusItem()));
    });
    if (way.takeLast() != first)
        problems.append(QStringLiteral("Tab does not lead back to the first; it leads to ") + names(way).join(" > "));
    for (QQuickItem* stop : stops) {
        if (!way.contains(stop))
            problems.append(QStringLiteral("Tab does not lead to ") + nameOf(stop));
    }
    problems += orderProblems(way, places, window->width());

    first->forceActiveFocus(Qt::TabFocusReason);
    QList<Picture> pictures;
    QList<QQuickItem*> wayBack = pressThrough(
        window, stops, Qt::Key_Backtab, [&](QQuickItem* stop) { pictures.append(takePicture(window, stop, holders)); });
    std::reverse(wayBack.begin(), wayBack.end());
    if (wayBack.size() != way.size() + 1 || wayBack.mid(1, way.size() - 1) != way.mid(1) || wayBack.first() != first)
        problems.append(QStringLiteral("Shift and Tab lead another way: ") + names(wayBack).join(" > "));
    for (const Picture& picture : pictures) {
        if (pictures.size() > 1 && !showsKeyboard(picture, pictures))
            problems.append(QStringLiteral("does not show that it has the keyboard: ") + nameOf(picture.stop));
    }
    return problems;
}

} // namespace Korvane
