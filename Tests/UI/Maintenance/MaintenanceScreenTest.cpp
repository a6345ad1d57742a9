// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceScreenFixture.h"

#include <QTest>

#include <cerrno>
#include <csignal>
#include <string>
#include <sys/types.h>

using namespace Korvane;
namespace fs = std::filesystem;

/// Tasks and background items in the real window, with an interpreter of the test's own and a real Trash.
class MaintenanceScreenTest : public MaintenanceScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void runsTasksAndTellsHowTheyStand();
    void quickPressesRunATaskOnce();
    void endsWhatHangsWithTheApplication();
    void removesAnAgentWithTheMouse();
    void puttingTheQuestionAwayRemovesNothing();
    void offersNoRemovalOfWhatIsTheSystems();
    void saysSoWhenThereIsNothing();
    void comesBackAfresh();
};

void MaintenanceScreenTest::runsTasksAndTellsHowTheyStand()
{
    const StandInInterpreter interpreter = this->interpreter();
    press("Maintenance");
    QTRY_VERIFY(shows("Speed up and maintain your Mac") && shows("Free Up RAM") && shows("Flush DNS Cache"));
    QVERIFY(shows("Reindex Spotlight") && shows("Purge inactive memory to relieve pressure"));
    QTRY_COMPARE(controls(window(), QStringLiteral("Run")).size(), 3);
    pressRun(0);
    pressRun(1);
    QVERIFY(!runButton(0)->isEnabled() && !runButton(1)->isEnabled() && runButton(2)->isEnabled());
    QVERIFY(!shows("Done"));

    interpreter.tell("dscacheutil", "echo '  User canceled. (-128)  ' >&2; exit 1");
    QTRY_VERIFY(shows("User canceled. (-128)"));
    QVERIFY(runButton(1)->isEnabled() && !runButton(0)->isEnabled() && !shows("Done"));
    interpreter.tell("purge", "echo unheard >&2; exit 0");
    QTRY_VERIFY(shows("Done"));
    QVERIFY(runButton(0)->isEnabled() && shows("User canceled. (-128)"));

    interpreter.hold("dscacheutil");
    pressRun(1);
    QVERIFY(!shows("User canceled. (-128)"));
    interpreter.tell("dscacheutil", "exit 0");
    QTRY_COMPARE(visibleTexts(window()).count(QStringLiteral("Done")), 2);
}

void MaintenanceScreenTest::quickPressesRunATaskOnce()
{
    const StandInInterpreter interpreter = this->interpreter();
    press("Maintenance");
    QTRY_VERIFY(runButton(2) && runButton(2)->isEnabled());
    QQuickItem* button = runButton(2);
    for (int pressed = 0; pressed < 5; ++pressed)
        click(button);
    QTest::mouseDClick(window(), Qt::LeftButton, Qt::NoModifier,
        button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint());
    interpreter.tell("mdutil", "exit 0");
    QTRY_VERIFY(shows("Done"));
    QCOMPARE(interpreter.calls(),
        std::string("-e do shell script \"/usr/bin/mdutil -E /\" with administrator "
                    "privileges\n"));
}

void MaintenanceScreenTest::endsWhatHangsWithTheApplication()
{
    const StandInInterpreter interpreter = this->interpreter();
    press("Maintenance");
    pressRun(0);
    QTRY_VERIFY(!interpreter.process("purge").empty());
    const pid_t process = std::stoi(interpreter.process("purge"));
    QCOMPARE(::kill(process, 0), 0);
    // Leaving the screen is no reason to end it, leaving the application is.
    press("Dashboard");
    QTest::qWait(100);
    QCOMPARE(::kill(process, 0), 0);
    m_app.reset();
    const int answer = ::kill(process, 0);
    const int error = errno;
    QCOMPARE(answer, -1);
    QCOMPARE(error, ESRCH);
}

void MaintenanceScreenTest::removesAnAgentWithTheMouse()
{
    install(userAgents(), "org.example.sync");
    install(userAgents(), "org.example.update");
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (2)"));
    QVERIFY(
        shows("Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash."));
    QTRY_VERIFY(shows("org.example.sync") && shows("/opt/example/run") && shows("User Agents"));
    QTRY_VERIFY(trashButton("org.example.sync"));
    click(trashButton("org.example.sync"));
    QTRY_VERIFY(shows("Remove org.example.sync?"));
    QVERIFY(shows("The launch agent file will be moved to Trash. It stops running after the next login."));
    press("Move to Trash");
    QTRY_VERIFY(shows("Background Items (1)"));
    QTRY_VERIFY(!agentRow("org.example.sync") && agentRow("org.example.update"));
    QVERIFY(isInTestTrash(m_test->host.environment, "org.example.sync.plist"));
    QVERIFY(fs::exists(userAgents() / "org.example.update.plist"));
}

void MaintenanceScreenTest::puttingTheQuestionAwayRemovesNothing()
{
    install(userAgents(), "org.example.sync");
    press("Maintenance");
    QTRY_VERIFY(trashButton("org.example.sync"));
    click(trashButton("org.example.sync"));
    QTRY_VERIFY(named("Move to Trash"));
    key(Qt::Key_Escape);
    QTRY_VERIFY(!named("Move to Trash"));
    click(trashButton("org.example.sync"));
    press("Cancel");
    QTRY_VERIFY(!named("Move to Trash"));
    QVERIFY(fs::exists(userAgents() / "org.example.sync.plist"));
    QVERIFY(shows("Background Items (1)"));
}

void MaintenanceScreenTest::offersNoRemovalOfWhatIsTheSystems()
{
    interpreter();
    install(systemAgents(), "org.example.agent");
    install(m_test->host.environment.machineLibrary / "LaunchDaemons", "org.example.daemon");
    press("Maintenance");
    QTRY_VERIFY(agentRow("org.example.agent") && agentRow("org.example.daemon"));
    QTRY_VERIFY(shows("System Agents") && shows("System Daemons") && !shows("User Agents"));
    QVERIFY(!trashButton("org.example.agent") && !trashButton("org.example.daemon"));
    tabTo("org.example.agent");
    for (const Qt::Key pressed : { Qt::Key_Delete, Qt::Key_Return, Qt::Key_Space })
        key(pressed);
    QTest::qWait(100);
    QVERIFY(!named("Move to Trash"));
    QVERIFY(fs::exists(systemAgents() / "org.example.agent.plist"));
}

void MaintenanceScreenTest::saysSoWhenThereIsNothing()
{
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (0)"));
}

void MaintenanceScreenTest::comesBackAfresh()
{
    const StandInInterpreter interpreter = this->interpreter();
    interpreter.tell("purge", "exit 0");
    press("Maintenance");
    pressRun(0);
    QTRY_VERIFY(shows("Done"));
    install(userAgents(), "org.example.sync");
    press("Uninstaller");
    press("Maintenance");
    QTRY_VERIFY(shows("Background Items (1)"));
    QVERIFY(!shows("Done"));
}

QTEST_MAIN(MaintenanceScreenTest)
#include "MaintenanceScreenTest.moc"
