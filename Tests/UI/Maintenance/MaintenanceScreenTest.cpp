// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/StandInInterpreter.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QTest>

#include <cerrno>
#include <csignal>
#include <string>
#include <sys/types.h>

using namespace Korvane;
namespace fs = std::filesystem;

/// Tasks and background items in the real window, with an interpreter of the test's own and a real Trash.
class MaintenanceScreenTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void runsTasksAndTellsHowTheyStand();
    void quickPressesRunATaskOnce();
    void runsTasksFromTheKeyboard();
    void endsWhatHangsWithTheApplication();
    void removesAnAgentWithTheMouse();
    void removesAnAgentFromTheKeyboard();
    void leadsToTheTasksOnceNothingIsLeft();
    void puttingTheQuestionAwayRemovesNothing();
    void offersNoRemovalOfWhatIsTheSystems();
    void saysSoWhenThereIsNothing();
    void showsTheLastOfManyAgents();
    void comesBackAfresh();

private:
    void install(const fs::path& folder, const std::string& label) const;
    fs::path userAgents() const { return home() / "Library/LaunchAgents"; }
    fs::path systemAgents() const { return m_test->host.environment.machineLibrary / "LaunchAgents"; }
    StandInInterpreter interpreter() const { return { m_test->host.environment, *m_folder / "told" }; }
    /// The button of a task's card, in the order of the cards.
    QQuickItem* runButton(int card) const { return controls(window(), QStringLiteral("Run")).value(card); }
    void pressRun(int card) const;
    /// The row of an agent, or the button in it; null when it cannot be seen.
    QQuickItem* agentRow(const char* label) const;
    QQuickItem* trashButton(const char* label) const;
    static QQuickItem* itemIn(QQuickItem* item, const char* kind, const QString& name);
};

void MaintenanceScreenTest::install(const fs::path& folder, const std::string& label) const
{
    writeFile(folder / (label + ".plist"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string><key>Program</key><string>/opt/example/run</string></dict></plist>\n");
}

void MaintenanceScreenTest::pressRun(int card) const
{
    QTRY_VERIFY(runButton(card) && runButton(card)->isEnabled());
    click(runButton(card));
}

QQuickItem* MaintenanceScreenTest::itemIn(QQuickItem* item, const char* kind, const QString& name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits(kind) && accessibleName(item) == name)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = itemIn(child, kind, name))
            return found;
    }
    return nullptr;
}

QQuickItem* MaintenanceScreenTest::agentRow(const char* label) const
{
    return itemIn(window()->contentItem(), "QQuickControl", utf8(label));
}

QQuickItem* MaintenanceScreenTest::trashButton(const char* label) const
{
    return itemIn(window()->contentItem(), "QQuickButton", QStringLiteral("Remove ") + utf8(label));
}

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

void MaintenanceScreenTest::runsTasksFromTheKeyboard()
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
    runButton(1)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    QCOMPARE(window()->activeFocusItem(), runButton(2));
    key(Qt::Key_Space);
    QTRY_VERIFY(shows("no index"));
    QVERIFY(interpreter.process("dscacheutil").empty());
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
    QVERIFY(shows("org.example.sync") && shows("/opt/example/run") && shows("User Agents"));
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

void MaintenanceScreenTest::removesAnAgentFromTheKeyboard()
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

void MaintenanceScreenTest::leadsToTheTasksOnceNothingIsLeft()
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
    QVERIFY(shows("System Agents") && shows("System Daemons") && !shows("User Agents"));
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

void MaintenanceScreenTest::showsTheLastOfManyAgents()
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
