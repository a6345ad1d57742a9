// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceScreenFixture.h"

#include <QTest>

#include <string>

using namespace Korvane;

/// What the keyboard does on the page of maintenance.
class MaintenanceKeyboardTest : public MaintenanceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void runsTasksFromTheKeyboard();
    void goesOnFromATaskThatRuns();
    void goesOnWhereNoTaskCanBeRun();
    void findsARowAgainAfterScrolling();
    void removesAnAgentFromTheKeyboard();
    void leadsToTheTasksOnceNothingIsLeft();
    void showsTheLastOfManyAgents();
};

void MaintenanceKeyboardTest::runsTasksFromTheKeyboard()
{
    const StandInInterpreter interpreter = this->interpreter();
    interpreter.tell("purge", "exit 0");
    tabTo("Maintenance");
    key(Qt::Key_Return);
    tabTo("Run");
    QCOMPARE(window()->activeFocusItem(), runButton(0));
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Done"));
    interpreter.tell("mdutil", "echo no index >&2; exit 3");
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    QCOMPARE(window()->activeFocusItem(), runButton(2));
    key(Qt::Key_Space);
    QTRY_VERIFY(shows("no index"));
    QVERIFY(interpreter.process("dscacheutil").empty());
}

void MaintenanceKeyboardTest::goesOnFromATaskThatRuns()
{
    const StandInInterpreter interpreter = this->interpreter();
    tabTo("Maintenance");
    key(Qt::Key_Return);
    tabTo("Run");
    key(Qt::Key_Return);
    QTRY_VERIFY(!runButton(0)->isEnabled());
    key(Qt::Key_Tab);
    QCOMPARE(window()->activeFocusItem(), runButton(1));
    key(Qt::Key_Return);
    QTRY_VERIFY(!runButton(1)->isEnabled());
    key(Qt::Key_Backtab);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("iPhone & iPad"));
    QTRY_VERIFY(!interpreter.process("purge").empty() && !interpreter.process("dscacheutil").empty());
    for (const char* task : { "purge", "dscacheutil" })
        interpreter.tell(task, "exit 0");
    QTRY_VERIFY(runButton(0)->isEnabled() && runButton(1)->isEnabled());
}

void MaintenanceKeyboardTest::goesOnWhereNoTaskCanBeRun()
{
    interpreter();
    install(userAgents(), "org.example.sync");
    tabTo("Maintenance");
    key(Qt::Key_Return);
    QTRY_VERIFY(agentRow("org.example.sync"));
    tabTo("Run");
    for (int card = 0; card < 3; ++card) {
        key(Qt::Key_Return);
        QTRY_VERIFY(!runButton(card)->isEnabled());
        key(Qt::Key_Tab);
    }
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.sync"));
}

void MaintenanceKeyboardTest::findsARowAgainAfterScrolling()
{
    for (int i = 1000; i < 1300; ++i)
        install(userAgents(), "org.example.agent" + std::to_string(i));
    tabTo("Maintenance");
    key(Qt::Key_Return);
    QTRY_VERIFY(agentRow("org.example.agent1000"));
    tabTo("org.example.agent1000");
    QQuickItem* page = window()->activeFocusItem()->parentItem()->parentItem();
    QVERIFY(page->setProperty("contentY", 9000));
    QTRY_VERIFY(accessibleName(window()->activeFocusItem()).startsWith(utf8("org.example.agent")));
    const QRectF row = window()->activeFocusItem()->mapRectToScene(window()->activeFocusItem()->boundingRect());
    QVERIFY(row.top() >= 0 && row.bottom() <= window()->height());
    QCOMPARE(page->property("contentY").toReal(), 9000.0);
}

void MaintenanceKeyboardTest::removesAnAgentFromTheKeyboard()
{
    interpreter();
    for (const char* label : { "a.first", "b.second", "c.third" })
        install(userAgents(), label);
    tabTo("Maintenance");
    key(Qt::Key_Return);
    QTRY_VERIFY(agentRow("c.third"));
    tabTo("a.first");
    key(Qt::Key_Down);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("b.second"));
    key(Qt::Key_End);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("c.third"));
    key(Qt::Key_Up);
    key(Qt::Key_Delete);
    QTRY_VERIFY(named("Move to Trash"));
    tabTo("Move to Trash");
    key(Qt::Key_Return);
    QTRY_VERIFY(!agentRow("b.second") && agentRow("a.first") && agentRow("c.third"));
    QVERIFY(isInTestTrash(m_test->host.environment, "b.second.plist"));
    // The keyboard stays among the rows, and leads back to the tasks.
    QTRY_VERIFY(window()->activeFocusItem()->inherits("QQuickControl"));
    QTRY_VERIFY(accessibleName(window()->activeFocusItem()).contains(QLatin1Char('.')));
    key(Qt::Key_Home);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("a.first"));
    key(Qt::Key_Up);
    QCOMPARE(window()->activeFocusItem(), runButton(2));
}

void MaintenanceKeyboardTest::leadsToTheTasksOnceNothingIsLeft()
{
    interpreter();
    install(userAgents(), "org.example.only");
    tabTo("Maintenance");
    key(Qt::Key_Return);
    QTRY_VERIFY(agentRow("org.example.only"));
    tabTo("org.example.only");
    key(Qt::Key_Delete);
    QTRY_VERIFY(named("Move to Trash"));
    tabTo("Move to Trash");
    key(Qt::Key_Return);
    QTRY_VERIFY(shows("Background Items (0)"));
    // The one that had it last, on the way down.
    QTRY_COMPARE(window()->activeFocusItem(), runButton(2));
}

void MaintenanceKeyboardTest::showsTheLastOfManyAgents()
{
    for (int i = 1000; i < 3000; ++i)
        install(userAgents(), "org.example.agent" + std::to_string(i));
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (2000)"));
    QTRY_VERIFY(agentRow("org.example.agent1000"));
    tabTo("org.example.agent1000");
    key(Qt::Key_End);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.agent2999"));
    QQuickItem* last = window()->activeFocusItem();
    QVERIFY(last->mapToScene(QPointF(0, last->height())).y() <= window()->height());
    QVERIFY(!agentRow("org.example.agent2000"));
    key(Qt::Key_Home);
    QCOMPARE(accessibleName(window()->activeFocusItem()), utf8("org.example.agent1000"));
}

QTEST_MAIN(MaintenanceKeyboardTest)
#include "MaintenanceKeyboardTest.moc"
