// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/TrayFixture.h"
#include "Tests/Support/Sentinel.h"
#include "UI/PreferenceKeys.h"

#include <QApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace Korvane;

/// What the icon in a real tray and its panel do.
class TrayTest : public TrayFixture {
    Q_OBJECT

private Q_SLOTS:
    void aClickShowsThePanelAtTheIcon();
    void aSecondClickHidesIt();
    void escapeHidesIt();
    void itGoesWhenAnotherWindowHasTheKeyboard();
    void theOtherButtonOpensTheMenu();
    void aDoubleClickOpensTheWindow();
    void tellsTheLastCleanupAndGrowsWithIt();
    void leadsByKeysFromCommandToCommand();
    void opensAClosedWindow();
    void opensAWindowThatIsAnIcon();
    void keepsTheSizeOfAWindowThatFilledTheScreen();
    void scansSystemJunkInAClosedWindow();
    void freesMemoryWithoutAWindow();
    void quits();
    void mirrorsForLanguagesFromTheRight();
    void livesOnInTheTrayAndComesBackWhenThatGoes();
};

void TrayTest::aClickShowsThePanelAtTheIcon()
{
    QVERIFY(panel() == nullptr);
    showPanel();
    const QRect icon = m_app->trayIcon().geometry();
    const QRect place = panel()->frameGeometry();
    QVERIFY(panel()->screen()->availableGeometry().contains(place));
    QVERIFY(!place.intersects(icon));
    QVERIFY(place.top() - icon.bottom() < 16);
    QVERIFY(place.left() < icon.right() && place.right() > icon.left());
    const QStringList texts{ QStringLiteral("Open Korvane"), QStringLiteral("Scan System Junk"),
        QStringLiteral("Free Up RAM"), QStringLiteral("Quit Korvane") };
    QCOMPARE(visibleTexts(panel()), texts);
    QVERIFY(m_app->menuBar().isShown());
}

void TrayTest::aSecondClickHidesIt()
{
    showPanel();
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    clickIcon();
    QTRY_VERIFY(!panel()->isVisible());
    QTRY_VERIFY(!m_app->menuBar().isShown());
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    showPanel();
}

void TrayTest::escapeHidesIt()
{
    showPanel();
    TrayHost::press(QStringLiteral("Escape"));
    QTRY_VERIFY(!panel()->isVisible());
    QVERIFY(window()->isVisible());
}

void TrayTest::itGoesWhenAnotherWindowHasTheKeyboard()
{
    showPanel();
    window()->requestActivate();
    QTRY_VERIFY(!panel()->isVisible());
}

void TrayTest::theOtherButtonOpensTheMenu()
{
    QVERIFY(m_test->host.defaults->setDouble(PreferenceKeys::lastCleanedDate, 1.0));
    showPanel();
    clickIcon(3);
    const QMenu& menu = m_app->trayIcon().menu();
    QTRY_VERIFY(menu.isVisible());
    QTRY_VERIFY(!panel()->isVisible());
    // The X server grants the keyboard to one at a time, and not always to the menu.
    QVERIFY(QApplication::activePopupWidget() == &menu);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!menu.isVisible());
}

void TrayTest::aDoubleClickOpensTheWindow()
{
    closeWindow();
    TrayHost::doubleClick(m_app->trayIcon().geometry().center());
    QTRY_VERIFY(window()->isVisible());
    QTRY_VERIFY(window()->isActive());
    QVERIFY(!panel()->isVisible());
}

void TrayTest::tellsTheLastCleanupAndGrowsWithIt()
{
    showPanel();
    const QRect before = panel()->frameGeometry();
    const auto other = makeUserDefaults(m_test->host.environment);
    QVERIFY(other->setInteger(PreferenceKeys::lastCleanedBytes, 12'400'000));
    QVERIFY(other->setDouble(PreferenceKeys::lastCleanedDate, 1.0));
    QTRY_VERIFY(visibleTexts(panel()).contains(QStringLiteral("Last cleanup: 12.4 MB")));
    QVERIFY(visibleTexts(panel()).contains(m_app->menuBar().lastCleanupMoment()));
    QTRY_VERIFY(panel()->height() > before.height() + 30);
    QTRY_VERIFY(panel()->screen()->availableGeometry().contains(panel()->frameGeometry()));
    QCOMPARE(panel()->frameGeometry().top(), before.top());
}

void TrayTest::leadsByKeysFromCommandToCommand()
{
    showPanel();
    QCOMPARE(focused(), QStringLiteral("Open Korvane"));
    const std::initializer_list<std::pair<const char*, const char*>> steps{ { "Down", "Open Korvane" },
        { "Down", "Scan System Junk" }, { "Down", "Free Up RAM" }, { "Up", "Scan System Junk" },
        { "Tab", "Free Up RAM" }, { "Tab", "Quit Korvane" }, { "Down", "Open Korvane" }, { "Up", "Quit Korvane" },
        { "Tab", "Open Korvane" } };
    for (const auto& [key, name] : steps) {
        TrayHost::press(QString::fromUtf8(key));
        QTRY_COMPARE(focused(), QString::fromUtf8(name));
    }
    closeWindow();
    TrayHost::press(QStringLiteral("Return"));
    QTRY_VERIFY(window()->isVisible());
    QTRY_VERIFY(!panel()->isVisible());
}

void TrayTest::opensAClosedWindow()
{
    closeWindow();
    showPanel();
    pressInPanel("Open Korvane");
    QTRY_VERIFY(window()->isActive());
    QVERIFY(!m_app->state().selectedModule());
}

void TrayTest::opensAWindowThatIsAnIcon()
{
    window()->showMinimized();
    QTRY_VERIFY(!window()->isExposed());
    showPanel();
    pressInPanel("Open Korvane");
    QTRY_VERIFY(window()->isActive());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
}

void TrayTest::keepsTheSizeOfAWindowThatFilledTheScreen()
{
    const QSize before = window()->size();
    window()->showMaximized();
    QTRY_VERIFY(window()->width() > before.width());
    QTRY_VERIFY(window()->windowStates() & Qt::WindowMaximized);
    // The window manager may still tell of what was before.
    QTest::qWait(300);
    QTRY_VERIFY(window()->windowStates() & Qt::WindowMaximized);
    const QSize full = window()->size();
    closeWindow();
    m_app->openMainWindow();
    QTRY_VERIFY(window()->isActive());
    QTRY_COMPARE(window()->size(), full);
    QTRY_VERIFY(window()->windowStates() & Qt::WindowMaximized);
}

void TrayTest::scansSystemJunkInAClosedWindow()
{
    writeFile(m_test->host.environment.home / "Library/Caches/org.example.maps/tiles", std::size_t{ 900'000 });
    closeWindow();
    showPanel();
    pressInPanel("Scan System Junk");
    QTRY_VERIFY(window()->isActive());
    QTRY_VERIFY(control(window(), QStringLiteral("Clean")));
    QVERIFY(visibleTexts(window()).contains(QStringLiteral("org.example.maps")));
    QVERIFY(!m_app->state().pendingScan());
}

void TrayTest::freesMemoryWithoutAWindow()
{
    closeWindow();
    showPanel();
    pressInPanel("Free Up RAM");
    QTRY_COMPARE(m_processes->started().size(), std::size_t{ 1 });
    QVERIFY(!window()->isVisible());
    showPanel();
    QVERIFY(!control(panel(), QStringLiteral("Free Up RAM"))->isEnabled());
    m_processes->end("purge", TestProcessRunner::exited(1, "User canceled."));
    QTRY_VERIFY(control(panel(), QStringLiteral("Free Up RAM"))->isEnabled());
}

void TrayTest::quits()
{
    showPanel();
    QSignalSpy asked(&m_app->menuBar(), &MenuBarViewModel::quitRequested);
    // Nobody but the test is to end.
    disconnect(&m_app->menuBar(), &MenuBarViewModel::quitRequested, qApp, nullptr);
    pressInPanel("Quit Korvane");
    QTRY_COMPARE(asked.count(), 1);
}

void TrayTest::mirrorsForLanguagesFromTheRight()
{
    const auto startsAtTheRight = [this] {
        const QQuickItem* row = control(panel(), QStringLiteral("Open Korvane"));
        const auto* symbol = row->findChild<QQuickItem*>(QStringLiteral("symbol"));
        return symbol->mapToItem(row, QPointF(symbol->width() / 2, 0)).x() > row->width() / 2;
    };
    showPanel();
    QVERIFY(!startsAtTheRight());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QTRY_VERIFY(startsAtTheRight());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QTRY_VERIFY(!startsAtTheRight());
}

void TrayTest::livesOnInTheTrayAndComesBackWhenThatGoes()
{
    QTimer::singleShot(0, window(), &QWindow::close);
    QTimer::singleShot(1000, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(QApplication::exec(), 7);
    QVERIFY(!window()->isVisible());
    m_tray.crash();
    QTRY_VERIFY_WITH_TIMEOUT(window()->isVisible(), 10'000);
    QVERIFY(!m_app->trayIcon().isReachable());
    // Now there is nothing to come back from any more.
    QTimer::singleShot(0, window(), &QWindow::close);
    QTimer::singleShot(10'000, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(QApplication::exec(), 0);
}

int main(int argc, char* argv[])
{
    // The desktop of whoever runs the tests may have a tray of another kind.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    QApplication application(argc, argv);
    TrayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TrayTest.moc"
