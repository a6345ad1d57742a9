// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/StandInInterpreter.h"
#include "Tests/UI/Tours/TourFixture.h"

#include <QTest>

using namespace Korvane;

/// From the dashboard to each module, and back.
class DashboardTourTest : public TourFixture {
    Q_OBJECT

private Q_SLOTS:
    void opensAModuleByItsCard_data();
    void opensAModuleByItsCard();
    void scansFromTheDashboardAndCancels();
    void opensEachModuleFromTheSidebar();
    void opensTheApplicationMenu();

private:
    static void modules();
};

void DashboardTourTest::modules()
{
    QTest::addColumn<QByteArray>("module");
    QTest::addColumn<QByteArray>("first");
    QTest::newRow("junk") << QByteArray("System Junk") << QByteArray("Start Scan");
    QTest::newRow("large") << QByteArray("Large & Old Files") << QByteArray("Start Scan");
    QTest::newRow("duplicates") << QByteArray("Duplicates") << QByteArray("Start Scan");
    QTest::newRow("apps") << QByteArray("Uninstaller") << QByteArray("Scan Applications");
    QTest::newRow("maintenance") << QByteArray("Maintenance") << QByteArray("Run");
    QTest::newRow("devices") << QByteArray("iPhone & iPad") << QByteArray("Refresh");
}

void DashboardTourTest::opensAModuleByItsCard_data() { modules(); }

void DashboardTourTest::opensAModuleByItsCard()
{
    QFETCH(const QByteArray, module);
    QFETCH(const QByteArray, first);
    const StandInInterpreter interpreter(m_test->host.environment, *m_folder / "told");
    open("Dashboard");
    arriveAt("Smart Scan");
    goTo(module.constData());
    hit(Qt::Key_Return);
    arriveAt(first.constData());
    open("Dashboard");
    QTRY_VERIFY(shows(utf8("Welcome to Korvane")));
    goTo(module.constData());
    hit(Qt::Key_Space);
    arriveAt(first.constData());
}

void DashboardTourTest::scansFromTheDashboardAndCancels()
{
    makeCaches();
    makeScansHoldable();
    holdScans();
    open("Dashboard");
    hit(Qt::Key_Return);
    arriveAt("Cancel");
    QVERIFY(shows(utf8("Scanning…")));
    hit(Qt::Key_Escape);
    arriveAt("Start Scan");
    // What was cancelled ends, and has its thread free for the next.
    letScansGo();
    drain();
    holdScans();
    open("Dashboard");
    goTo("Smart Scan");
    hit(Qt::Key_Space);
    arriveAt("Cancel");
    hit(Qt::Key_Space);
    arriveAt("Start Scan");
    letScansGo();
    hit(Qt::Key_Return);
    arriveAt("org.example.maps");
}

void DashboardTourTest::opensEachModuleFromTheSidebar()
{
    const StandInInterpreter interpreter(m_test->host.environment, *m_folder / "told");
    for (const auto& [module, first] :
        { std::pair{ "System Junk", "Start Scan" }, std::pair{ "Large & Old Files", "Start Scan" },
            std::pair{ "Duplicates", "Start Scan" }, std::pair{ "Uninstaller", "Scan Applications" },
            std::pair{ "Maintenance", "Run" }, std::pair{ "iPhone & iPad", "Refresh" } }) {
        open(module);
        arriveAt(first);
        // The other way round leads back to where it came from.
        hit(Qt::Key_F6);
        arriveAt(module);
        hit(Qt::Key_Right);
        arriveAt(first);
    }
}

void DashboardTourTest::opensTheApplicationMenu()
{
    open("Dashboard");
    hit(Qt::Key_F6);
    arriveAt("Dashboard");
    goTo("Application menu", Qt::Key_Backtab);
    hit(Qt::Key_Return);
    arriveAt("Settings…");
    hit(Qt::Key_Down);
    arriveAt("Quit Korvane");
    hit(Qt::Key_Escape);
    arriveAt("Application menu");
}

QTEST_MAIN(DashboardTourTest)
#include "DashboardTourTest.moc"
