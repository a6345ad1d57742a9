// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/PanelPosition.h"

#include <QTest>

using namespace Korvane;

class PanelPositionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isThereWhereTheDesktopAllows_data();
    void isThereWhereTheDesktopAllows();
    void hangsAtTheIcon_data();
    void hangsAtTheIcon();
    void showsItsBeginningWhenTheScreenIsTooSmall();
};

void PanelPositionTest::isThereWhereTheDesktopAllows_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QRect>("icon");
    QTest::addColumn<PanelPlace>("place");
    const QRect told(1000, 3, 24, 24);
    const QRect untold;
    QTest::newRow("X11") << QStringLiteral("xcb") << told << PanelPlace::AtIcon;
    QTest::newRow("X11, a tray on the bus") << QStringLiteral("xcb") << untold << PanelPlace::AtPointer;
    QTest::newRow("macOS") << QStringLiteral("cocoa") << told << PanelPlace::AtIcon;
    QTest::newRow("macOS, no room for the icon") << QStringLiteral("cocoa") << untold << PanelPlace::AtPointer;
    QTest::newRow("Wayland") << QStringLiteral("wayland") << untold << PanelPlace::Nowhere;
    QTest::newRow("Wayland, a place that means nothing") << QStringLiteral("wayland") << told << PanelPlace::Nowhere;
    QTest::newRow("Wayland with OpenGL") << QStringLiteral("wayland-egl") << untold << PanelPlace::Nowhere;
    QTest::newRow("no desktop") << QStringLiteral("offscreen") << told << PanelPlace::Nowhere;
}

void PanelPositionTest::isThereWhereTheDesktopAllows()
{
    QFETCH(const QString, platform);
    QFETCH(const QRect, icon);
    QTEST(panelPlace(platform, icon), "place");
}

void PanelPositionTest::hangsAtTheIcon_data()
{
    QTest::addColumn<QRect>("icon");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QPoint>("position");
    const QRect belowABar(0, 30, 1440, 870);
    QTest::newRow("bar above") << QRect(1000, 3, 24, 24) << belowABar << QPoint(871, 36);
    QTest::newRow("bar above, at the right edge") << QRect(1410, 3, 24, 24) << belowABar << QPoint(1154, 36);
    QTest::newRow("bar above, at the left edge") << QRect(2, 3, 24, 24) << belowABar << QPoint(6, 36);
    QTest::newRow("bar below") << QRect(1000, 873, 24, 24) << QRect(0, 0, 1440, 870) << QPoint(871, 664);
    QTest::newRow("bar at the left") << QRect(3, 850, 24, 24) << QRect(30, 0, 1410, 900) << QPoint(36, 644);
    QTest::newRow("bar at the right") << QRect(1413, 20, 24, 24) << QRect(0, 0, 1410, 900) << QPoint(1124, 50);
    QTest::newRow("another screen, left of the first")
        << QRect(-200, -497, 24, 24) << QRect(-1920, -470, 1920, 1050) << QPoint(-328, -464);
    QTest::newRow("no bar at all") << QRect(1410, 870, 24, 24) << QRect(0, 0, 1440, 900) << QPoint(1154, 664);
}

void PanelPositionTest::hangsAtTheIcon()
{
    QFETCH(const QRect, icon);
    QFETCH(const QRect, available);
    QFETCH(const QPoint, position);
    const QSize panel(280, 200);
    QCOMPARE(panelPosition(icon, panel, available), position);
    QVERIFY(available.contains(QRect(position, panel)));
    QVERIFY(!QRect(position, panel).intersects(icon));
}

void PanelPositionTest::showsItsBeginningWhenTheScreenIsTooSmall()
{
    const QRect available(100, 50, 200, 100);
    QCOMPARE(panelPosition(QRect(150, 30, 20, 20), QSize(280, 200), available), QPoint(106, 56));
    QCOMPARE(panelPosition(QRect(150, 160, 20, 20), QSize(280, 200), available), QPoint(106, 56));
}

QTEST_APPLESS_MAIN(PanelPositionTest)
#include "PanelPositionTest.moc"
