// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/StandInInterpreter.h"
#include "Tests/UI/Tours/TourFixture.h"

#include <QTest>

using namespace Korvane;
namespace fs = std::filesystem;

/// The tasks for the whole machine, and what starts by itself.
class MaintenanceTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void runsATask();
    void removesABackgroundItem();

private:
    void install(const fs::path& folder, const std::string& label) const;
    StandInInterpreter interpreter() const { return { m_test->host.environment, *m_folder / "told" }; }
    fs::path userAgents() const { return home() / "Library/LaunchAgents"; }
};

void MaintenanceTourTest::install(const fs::path& folder, const std::string& label) const
{
    writeFile(folder / (label + ".plist"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>" + label
            + "</string><key>Program</key><string>/opt/example/run</string></dict></plist>\n");
}

void MaintenanceTourTest::runsATask()
{
    const StandInInterpreter interpreter = this->interpreter();
    open("Maintenance");
    arriveAt("Run");
    const QQuickItem* first = front()->activeFocusItem();
    // It runs until it is told to end: the keyboard stays where it was.
    hit(Qt::Key_Return);
    QTRY_VERIFY(!first->isEnabled());
    interpreter.tell("purge", "exit 0");
    QTRY_VERIFY(shows(utf8("Done")));
    arriveAt("Run");
    QCOMPARE(front()->activeFocusItem(), first);

    hit(Qt::Key_Tab);
    interpreter.tell("dscacheutil", "echo no cache >&2; exit 3");
    hit(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("no cache")));
    arriveAt("Run");
    QVERIFY(front()->activeFocusItem() != first);
    // Another time while the next one is begun.
    interpreter.hold("dscacheutil");
    hit(Qt::Key_Space);
    hit(Qt::Key_Tab);
    arriveAt("Run");
    hit(Qt::Key_Space);
    hit(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(front()->activeFocusItem(), first);
    for (const char* task : { "dscacheutil", "mdutil" })
        interpreter.tell(task, "exit 0");
    QTRY_COMPARE(visibleTexts(window()).count(utf8("Done")), 3);
}

void MaintenanceTourTest::removesABackgroundItem()
{
    interpreter();
    for (const char* label : { "a.first", "b.second" })
        install(userAgents(), label);
    install(m_test->host.environment.machineLibrary / "LaunchAgents", "c.system");
    open("Maintenance");
    arriveAt("Run");
    QTRY_VERIFY(shows(utf8("Background Items (3)")));
    goTo("a.first", Qt::Key_Tab, 3);
    goTo("b.second", Qt::Key_Down, 1);
    hit(Qt::Key_Delete);
    beAsked("Move to Trash", "Cancel");
    hit(Qt::Key_Escape);
    beAskedNoMore("Move to Trash");
    arriveAt("b.second");
    hit(Qt::Key_Return);
    beAsked("Move to Trash", "Cancel");
    goTo("Move to Trash", Qt::Key_Tab, 1);
    hit(Qt::Key_Return);
    QTRY_VERIFY(shows(utf8("Background Items (2)")));
    arriveAt("c.system");
    QVERIFY(wasTrashed(userAgents() / "b.second.plist"));
    // What belongs to the system stays.
    hit(Qt::Key_Delete);
    hit(Qt::Key_Return);
    QVERIFY(!named("Move to Trash"));
    goTo("a.first", Qt::Key_Home, 1);
    hit(Qt::Key_Space);
    beAsked("Move to Trash", "Cancel");
    goTo("Move to Trash", Qt::Key_Tab, 1);
    hit(Qt::Key_Space);
    QTRY_VERIFY(shows(utf8("Background Items (1)")));
    arriveAt("c.system");
    QVERIFY(fs::exists(m_test->host.environment.machineLibrary / "LaunchAgents/c.system.plist"));
    goTo("Run", Qt::Key_Up, 1);
}

QTEST_MAIN(MaintenanceTourTest)
#include "MaintenanceTourTest.moc"
