// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/LoadedWindow.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "UI/Controls/ScreenReader.h"

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

#include <memory>

using namespace Korvane;

namespace {

const QByteArray qml = R"(
import QtQuick
import Korvane.UI

Window {
    property Item bar: bar

    width: 300
    height: 100
    visible: true

    ProgressBar {
        id: bar

        x: 10
        y: 20
        to: 2
        value: 1.06
        Accessible.name: "Space"
        Accessible.description: "half of it"
    }
}
)";

} // namespace

/// What a screen reader hears of a bar.
class BarAccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void tellsItsValue();
    void tellsThatNobodyKnows();
    void isWhereItIs();

private:
    QQuickWindow* window() const { return m_loaded->window(); }
    QQuickItem* bar() const { return m_loaded->property<QQuickItem*>("bar"); }
    QAccessibleInterface* heard() const { return QAccessible::queryAccessibleInterface(bar()); }

    QmlWarnings m_warnings;
    std::unique_ptr<LoadedWindow> m_loaded;
};

void BarAccessTest::initTestCase()
{
    QAccessible::setActive(true);
    ScreenReader::install();
}

void BarAccessTest::init()
{
    m_loaded = std::make_unique<LoadedWindow>(qml);
    QVERIFY2(window(), qPrintable(m_loaded->errors()));
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QVERIFY(heard() != nullptr);
}

void BarAccessTest::cleanup()
{
    m_loaded.reset();
    QCOMPARE(m_warnings.texts(), QStringList());
}

void BarAccessTest::tellsItsValue()
{
    QCOMPARE(heard()->role(), QAccessible::ProgressBar);
    QCOMPARE(heard()->text(QAccessible::Name), QStringLiteral("Space"));
    QCOMPARE(heard()->text(QAccessible::Description), QStringLiteral("half of it"));
    QAccessibleValueInterface* value = heard()->valueInterface();
    QVERIFY(value != nullptr);
    QCOMPARE(value->currentValue().toInt(), 53);
    QCOMPARE(value->minimumValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 100);
    QVERIFY(heard()->state().readOnly);
    value->setCurrentValue(10);
    QCOMPARE(bar()->property("value").toDouble(), 1.06);
}

void BarAccessTest::tellsThatNobodyKnows()
{
    QVERIFY(!heard()->state().busy);
    bar()->setProperty("indeterminate", true);
    QVERIFY(heard()->state().busy);
    QVERIFY(heard()->valueInterface() == nullptr);
}

void BarAccessTest::isWhereItIs()
{
    QCOMPARE(heard()->window(), window());
    QAccessibleInterface* around = QAccessible::queryAccessibleInterface(window());
    QCOMPARE(heard()->parent(), around);
    QVERIFY(around->indexOfChild(heard()) >= 0);
    QCOMPARE(heard()->rect().topLeft(), window()->mapToGlobal(QPoint(10, 20)));
    QVERIFY(!heard()->state().invisible);
    window()->contentItem()->setOpacity(0);
    QVERIFY(heard()->state().invisible);
}

QTEST_MAIN(BarAccessTest)
#include "BarAccessTest.moc"
