// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QApplication>
#include <QTest>

using namespace Korvane;

/// The dashboard in the smallest window, where not all of it is to be seen at once.
class DashboardViewTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void whatTheKeyboardLeadsToIsSeenWhole();
    void aPressOnACardThatIsCutOffOpensIt();
    void theSmallestWindowShowsAllOfIt();
    void theCardsAreInTheOrderOfTheModules();

private:
    void makeSmall() const;
    QQuickItem* dashboard() const;
    bool isSeenWhole(const QQuickItem* item) const;
    /// In how many rows the cards stand; -1 when they do not follow each other as the modules do.
    int rowsOfCards() const;
};

void DashboardViewTest::makeSmall() const
{
    // A file where a folder should be: access is missing, and the banner takes its share of the height.
    writeFile(home() / "Library/Safari", "");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    window()->resize(window()->minimumSize());
    QTRY_COMPARE(window()->contentItem()->size().toSize(), window()->minimumSize());
    QTRY_VERIFY(dashboard()->property("contentHeight").toReal() > dashboard()->height());
}

QQuickItem* DashboardViewTest::dashboard() const
{
    QQuickItem* item = controls(window(), utf8("Smart Scan")).first();
    while (item != nullptr && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item;
}

bool DashboardViewTest::isSeenWhole(const QQuickItem* item) const
{
    const QRectF seen = dashboard()->mapRectToScene(QRectF(QPointF(), dashboard()->size()));
    return seen.contains(item->mapRectToScene(QRectF(QPointF(), item->size())));
}

void DashboardViewTest::whatTheKeyboardLeadsToIsSeenWhole()
{
    makeSmall();
    const QList<QQuickItem*> cards = controls(window(), utf8("iPhone & iPad"));
    QCOMPARE(cards.size(), 2);
    QVERIFY(!isSeenWhole(cards.last()));
    for (const auto& [direction, modifiers] : { std::pair{ Qt::Key_Tab, Qt::KeyboardModifiers() },
             std::pair{ Qt::Key_Backtab, Qt::KeyboardModifiers(Qt::ShiftModifier) } }) {
        int reached = 0;
        for (int presses = 0; presses < 40; ++presses) {
            key(direction, modifiers);
            QQuickItem* focused = window()->activeFocusItem();
            QVERIFY(focused != nullptr);
            if (!dashboard()->isAncestorOf(focused))
                continue;
            ++reached;
            QTRY_VERIFY2(isSeenWhole(focused), qPrintable(accessibleName(focused)));
        }
        QVERIFY(reached >= 7);
    }
}

void DashboardViewTest::aPressOnACardThatIsCutOffOpensIt()
{
    makeSmall();
    QQuickItem* card = controls(window(), utf8("iPhone & iPad")).last();
    const QPointF top = card->mapToScene(QPointF(card->width() / 2, 4));
    QVERIFY(top.y() < window()->height());
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, top.toPoint());
    QCOMPARE(dashboard()->property("contentY").toReal(), 0.0);
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, top.toPoint());
    QTRY_VERIFY(m_app->state().selectedModule() == CleanerModule::iosDevice);
}

void DashboardViewTest::theSmallestWindowShowsAllOfIt()
{
    window()->resize(window()->minimumSize());
    QTRY_COMPARE(window()->contentItem()->size().toSize(), window()->minimumSize());
    QTRY_VERIFY(dashboard()->property("contentHeight").toReal() <= dashboard()->height());
}

int DashboardViewTest::rowsOfCards() const
{
    QPointF last(-1, -1);
    int rows = 0;
    for (const char* name :
        { "System Junk", "Large & Old Files", "Uninstaller", "Maintenance", "Duplicates", "iPhone & iPad" }) {
        const QPointF place = controls(window(), utf8(name)).last()->mapToItem(dashboard(), QPointF());
        const bool isNextRow = place.y() > last.y();
        if (!isNextRow && (place.y() != last.y() || place.x() <= last.x()))
            return -1;
        rows += isNextRow ? 1 : 0;
        last = place;
    }
    return rows;
}

void DashboardViewTest::theCardsAreInTheOrderOfTheModules()
{
    for (const int width : { 960, 1080, 1600 }) {
        window()->resize(width, 700);
        QTRY_COMPARE(window()->contentItem()->width(), width);
        QTRY_COMPARE(rowsOfCards(), 2);
    }
}

QTEST_MAIN(DashboardViewTest)
#include "DashboardViewTest.moc"
