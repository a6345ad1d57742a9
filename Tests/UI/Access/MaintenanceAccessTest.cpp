// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"

#include <QTest>

using namespace Korvane;

/// What a screen reader and the keyboard find on the page of maintenance.
class MaintenanceAccessTest : public MaintenanceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void tasksThatCannotBeRun();
    void tasksInEveryState();
    void backgroundItems();
    void theQuestion();
};

void MaintenanceAccessTest::tasksThatCannotBeRun()
{
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (0)"));
    checkAccess(window(), "tasks that cannot be run");
}

void MaintenanceAccessTest::tasksInEveryState()
{
    const StandInInterpreter interpreter = this->interpreter();
    press("Maintenance");
    QTRY_VERIFY(shows("Free Up RAM"));
    checkAccess(window(), "tasks that were never run");
    pressRun(0);
    pressRun(1);
    QTRY_VERIFY(!runButton(0)->isEnabled() && !runButton(1)->isEnabled());
    checkAccess(window(), "tasks that run");
    interpreter.tell("dscacheutil", "echo 'User canceled. (-128)' >&2; exit 1");
    interpreter.tell("purge", "exit 0");
    QTRY_VERIFY(shows("User canceled. (-128)") && shows("Done"));
    // Not by colour alone: each has its sign.
    const auto card = [&](int index) { return shapesOf(runButton(index)->parentItem()); };
    QVERIFY(card(0).contains(QStringLiteral("checkmark.circle.fill")));
    QVERIFY(card(1).contains(QStringLiteral("exclamationmark.triangle.fill")));
    checkAccess(window(), "tasks that were run");
}

void MaintenanceAccessTest::backgroundItems()
{
    interpreter();
    for (int i = 0; i < 30; ++i)
        install(userAgents(), "org.example.agent" + std::to_string(i));
    install(systemAgents(), "org.example.system");
    press("Maintenance");
    QTRY_VERIFY(agentRow("org.example.agent0"));
    checkAccess(window(), "background items, more than fit");
}

void MaintenanceAccessTest::theQuestion()
{
    install(userAgents(), "org.example.sync");
    press("Maintenance");
    QTRY_VERIFY(trashButton("org.example.sync"));
    click(trashButton("org.example.sync"));
    QTRY_VERIFY(named("Move to Trash"));
    checkAccess(window(), "the question before an item is removed");
}

QTEST_MAIN(MaintenanceAccessTest)
#include "MaintenanceAccessTest.moc"
