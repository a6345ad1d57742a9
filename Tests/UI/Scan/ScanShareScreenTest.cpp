// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QAccessible>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QTest>

#include <cmath>

using namespace Korvane;

/// The bar of the categories' shares over the findings, and its legend.
class ScanShareScreenTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void everyCategoryIsNamedWithItsSize();
    void aPressOnTheLegendLeadsToTheSection();
    void theKeyboardGoesThroughTheLegendAndLeadsToTheSection();
    void partsStandInTheOrderOfTheLegendAlsoFromRightToLeft();
    void oneCategoryNeedsNoBar();

private:
    /// So many caches that the logs after them are out of sight.
    void makeManyCaches() const;
    QQuickItem* list() const { return named("Findings"); }
    /// The entry of the legend.
    QQuickItem* entry(const char* category) const;
    QQuickItem* bar() const { return itemsNamed(window(), "Shares of the categories").value(0); }
};

void ScanShareScreenTest::makeManyCaches() const
{
    makeCaches();
    for (int index = 0; index < 60; ++index)
        writeFile(
            home() / ("Library/Caches/org.example.many" + std::to_string(index)) / "data", std::size_t{ 150'000 });
}

QQuickItem* ScanShareScreenTest::entry(const char* category) const
{
    for (QQuickItem* item : itemsNamed(window(), utf8(category))) {
        if (item->inherits("QQuickAbstractButton") && item->property("firstRow").isValid())
            return item;
    }
    return nullptr;
}

void ScanShareScreenTest::everyCategoryIsNamedWithItsSize()
{
    makeCaches();
    scan();
    QTRY_VERIFY(bar());
    const QString told = QAccessible::queryAccessibleInterface(bar())->text(QAccessible::Description);
    for (const char* category : { "User Caches", "Log Files" }) {
        QTRY_VERIFY2(entry(category), category);
        const QString size = QAccessible::queryAccessibleInterface(entry(category))->text(QAccessible::Description);
        QVERIFY(size.contains(utf8("KB")) || size.contains(utf8("MB")));
        QVERIFY2(told.contains(utf8(category) + utf8(": ") + size), qPrintable(told));
        QVERIFY(shows(size));
    }
}

void ScanShareScreenTest::aPressOnTheLegendLeadsToTheSection()
{
    makeManyCaches();
    scan();
    QTRY_VERIFY(entry("Log Files"));
    QVERIFY(row("example.log") == nullptr || !row("example.log")->isVisible()
        || row("example.log")->mapToItem(list(), QPointF()).y() > list()->height());
    click(entry("Log Files"));
    QTRY_VERIFY(row("example.log"));
    QTRY_VERIFY(row("example.log")->mapToItem(list(), QPointF()).y() < list()->height());
    QTRY_VERIFY(row("example.log")->hasActiveFocus());
    click(entry("User Caches"));
    QTRY_VERIFY(row("org.example.maps"));
    QTRY_VERIFY(row("org.example.maps")->hasActiveFocus());
    QCOMPARE(list()->property("contentY").toReal(), list()->property("originY").toReal());
}

void ScanShareScreenTest::theKeyboardGoesThroughTheLegendAndLeadsToTheSection()
{
    makeManyCaches();
    scan();
    QTRY_VERIFY(entry("User Caches"));
    for (int steps = 0; steps < 40 && window()->activeFocusItem() != entry("User Caches"); ++steps)
        key(Qt::Key_Tab);
    QCOMPARE(window()->activeFocusItem(), entry("User Caches"));
    key(Qt::Key_Right);
    QTRY_COMPARE(window()->activeFocusItem(), entry("Log Files"));
    key(Qt::Key_Right);
    QCOMPARE(window()->activeFocusItem(), entry("Log Files"));
    key(Qt::Key_Home);
    QCOMPARE(window()->activeFocusItem(), entry("User Caches"));
    key(Qt::Key_End);
    key(Qt::Key_Return);
    QTRY_VERIFY(row("example.log") && row("example.log")->hasActiveFocus());
    // Ticking goes on from there.
    const Tick before = tick("example.log");
    key(Qt::Key_Space);
    QTRY_VERIFY(tick("example.log") != before);
}

void ScanShareScreenTest::partsStandInTheOrderOfTheLegendAlsoFromRightToLeft()
{
    makeCaches();
    scan();
    QTRY_VERIFY(bar());
    QList<QQuickItem*> parts;
    for (QQuickItem* child : bar()->childItems()) {
        if (child->property("share").isValid())
            parts.append(child);
    }
    QCOMPARE(parts.size(), 2);
    QTRY_VERIFY(parts[0]->width() >= 2 && parts[1]->width() >= 2);
    // Widths come first, places with the next frame.
    QTRY_VERIFY(parts[0]->x() < parts[1]->x());
    QTRY_VERIFY(std::abs(parts[1]->x() + parts[1]->width() - bar()->width()) < 1);
    QQmlProperty mirroring(bar(), QStringLiteral("LayoutMirroring.enabled"), qmlContext(bar()));
    QVERIFY(mirroring.write(true));
    QTRY_VERIFY(parts[0]->x() > parts[1]->x());
}

void ScanShareScreenTest::oneCategoryNeedsNoBar()
{
    writeFile(home() / "Library/Logs/example.log", std::size_t{ 100'000 });
    scan();
    QTRY_VERIFY(row("example.log"));
    QVERIFY(bar() == nullptr);
    QVERIFY(entry("Log Files") == nullptr);
}

QTEST_MAIN(ScanShareScreenTest)
#include "ScanShareScreenTest.moc"
