// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/TrayService.h"
#include "App/KorvaneApp.h"
#include "App/PanelPosition.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Maintenance/HeldProcesses.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"

#include <QApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Korvane;

/// In milliseconds: for a tray to come back after anything that may have taken it away. The end of a window, which on
/// X11 may be the tray's, is such a thing too.
constexpr int longerThanItWaits = 4000;

/// The icon in the tray of a desktop that keeps one on its session bus, as most do.
class TrayServiceTest : public QObject {
    Q_OBJECT

public:
    explicit TrayServiceTest(TrayService& tray)
        : m_tray(tray)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void putsAnIconThere();
    void itsMenuSaysWhatTheNativeMenuSays();
    void itsMenuTellsTheLastCleanup();
    void aClickOpensTheSameLines();
    void itsMenuOpensAClosedWindow();
    void itsMenuScansSystemJunkInAClosedWindow();
    void itsMenuFreesMemoryWithoutAWindow();
    void itsMenuQuits();
    void livesOnWithoutAWindow();
    void comesBackWhenTheTrayGoes();
    void comesBackWhenThePanelOfTheTrayGoes();
    void staysAwayWhileTheTrayIsStartedAnew();
    void endsWithItsWindowOnceTheTrayHasGone();
    void livesOnAgainInATrayThatReturns();

private:
    QQuickWindow* window() const { return m_app->mainWindow(); }
    void closeWindow() const
    {
        window()->close();
        QTRY_VERIFY(!window()->isVisible());
    }
    int runWithItsWindowClosed() const;

    TrayService& m_tray;
    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_test;
    std::shared_ptr<HeldProcesses> m_processes;
    std::unique_ptr<KorvaneApp> m_app;
};

void TrayServiceTest::initTestCase()
{
    if (QGuiApplication::platformName() == QStringLiteral("offscreen"))
        QSKIP("A tray needs a desktop");
    if (!m_tray.obstacle().isEmpty())
        QSKIP(qPrintable(m_tray.obstacle()));
    m_tray.start();
}

void TrayServiceTest::init()
{
    m_warnings = std::make_unique<QmlWarnings>();
    m_folder = std::make_unique<TemporaryFolder>();
    m_test = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_processes = std::make_shared<HeldProcesses>();
    m_test->host.processes = m_processes;
    writeFile(m_test->host.environment.scriptInterpreter, "");
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QTRY_COMPARE(TrayService::icons().size(), 1);
}

void TrayServiceTest::cleanup()
{
    m_app.reset();
    finishBackgroundWork();
    const QStringList warnings = m_warnings->texts();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
    QTRY_COMPARE(TrayService::icons().size(), 0);
}

void TrayServiceTest::putsAnIconThere()
{
    QVERIFY(m_app->trayIcon().isReachable());
    QCOMPARE(TrayService::told("Title").toString(), QStringLiteral("Korvane"));
    QCOMPARE(TrayService::told("Status").toString(), QStringLiteral("Active"));
    QCOMPARE(TrayService::told("Category").toString(), QStringLiteral("ApplicationStatus"));
    QCOMPARE(TrayService::toolTip(), QStringLiteral("Korvane"));
    // What panels of ordinary and of doubled size draw without making it larger.
    const QList<QSize> sizes = TrayService::iconSizes();
    for (const int wanted : { 16, 22, 24, 32, 44, 48 })
        QVERIFY2(sizes.contains(QSize(wanted, wanted)), qPrintable(QString::number(wanted)));
}

void TrayServiceTest::itsMenuSaysWhatTheNativeMenuSays()
{
    const QStringList lines{ QStringLiteral("Open Korvane"), QStringLiteral("Scan System Junk"),
        QStringLiteral("Free Up RAM"), QStringLiteral("Quit Korvane") };
    QCOMPARE(TrayService::menuTexts(), lines);
    m_app->panel().toggle(QRect(700, 3, 24, 24));
    QCOMPARE(visibleTexts(m_app->panel().window()), lines);
    // Opening the menu is enough for the panel to go.
    TrayService::openMenu();
    QTRY_VERIFY(!m_app->panel().window()->isVisible());
}

void TrayServiceTest::itsMenuTellsTheLastCleanup()
{
    TrayService::openMenu();
    QVERIFY(m_test->host.defaults->setInteger(PreferenceKeys::lastCleanedBytes, 12'400'000));
    QVERIFY(m_test->host.defaults->setDouble(PreferenceKeys::lastCleanedDate, 1.0));
    QTRY_COMPARE(TrayService::menuTexts().size(), 6);
    const QList<TrayService::Line> lines = TrayService::openMenu();
    QCOMPARE(lines.at(0).text, QStringLiteral("Last cleanup: 12.4 MB"));
    QCOMPARE(lines.at(1).text, m_app->menuBar().lastCleanupMoment());
    // They tell; there is nothing to press.
    QVERIFY(!lines.at(0).isEnabled && !lines.at(1).isEnabled);
}

void TrayServiceTest::aClickOpensTheSameLines()
{
    closeWindow();
    if (panelPlace(QGuiApplication::platformName(), m_app->trayIcon().geometry()) == PanelPlace::Nowhere) {
        QVERIFY(TrayService::press("Activate"));
        QTRY_VERIFY(window()->isVisible());
        return;
    }
    QVERIFY(m_app->trayIcon().geometry().isEmpty());
    QVERIFY(TrayService::press("Activate"));
    const QMenu& menu = m_app->trayIcon().menu();
    QTRY_VERIFY(menu.isVisible());
    QVERIFY(m_app->panel().window() == nullptr);
    QVERIFY(!window()->isVisible());
    QVERIFY(QApplication::activePopupWidget() == &menu);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QTRY_VERIFY(window()->isVisible());
    QTRY_VERIFY(!menu.isVisible());
}

void TrayServiceTest::itsMenuOpensAClosedWindow()
{
    closeWindow();
    QVERIFY(TrayService::choose(QStringLiteral("Open Korvane")));
    QTRY_VERIFY(window()->isVisible());
    QVERIFY(!m_app->state().selectedModule());
}

void TrayServiceTest::itsMenuScansSystemJunkInAClosedWindow()
{
    writeFile(m_test->host.environment.home / "Library/Caches/org.example.maps/tiles", std::size_t{ 900'000 });
    closeWindow();
    QVERIFY(TrayService::choose(QStringLiteral("Scan System Junk")));
    QTRY_VERIFY(window()->isVisible());
    QTRY_VERIFY(control(window(), QStringLiteral("Clean")));
    QVERIFY(visibleTexts(window()).contains(QStringLiteral("org.example.maps")));
    QVERIFY(!m_app->state().pendingScan());
}

void TrayServiceTest::itsMenuFreesMemoryWithoutAWindow()
{
    closeWindow();
    QVERIFY(TrayService::choose(QStringLiteral("Free Up RAM")));
    QTRY_COMPARE(m_processes->started().size(), std::size_t{ 1 });
    QVERIFY(!window()->isVisible());
    m_processes->end("purge", TestProcessRunner::exited(1, "User canceled."));
    QTRY_VERIFY(!m_app->menuBar().isFreeingRam());
}

void TrayServiceTest::itsMenuQuits()
{
    closeWindow();
    QTimer::singleShot(0, this, [] { QVERIFY(TrayService::choose(QStringLiteral("Quit Korvane"))); });
    QTimer::singleShot(30'000, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(QApplication::exec(), 0);
}

int TrayServiceTest::runWithItsWindowClosed() const
{
    constexpr int stillRunning = 7;
    const QMetaObject::Connection closed = connect(
        qApp, &QApplication::lastWindowClosed, qApp,
        // Later than whatever follows from it.
        [] { QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(stillRunning); }); }, Qt::QueuedConnection);
    QTimer::singleShot(0, window(), &QWindow::close);
    const int status = QApplication::exec();
    disconnect(closed);
    return status;
}

void TrayServiceTest::livesOnWithoutAWindow()
{
    QCOMPARE(runWithItsWindowClosed(), 7);
    QVERIFY(!window()->isVisible());
}

void TrayServiceTest::comesBackWhenTheTrayGoes()
{
    closeWindow();
    QTest::qWait(longerThanItWaits);
    QVERIFY(!window()->isVisible());
    m_tray.crash();
    QTRY_VERIFY_WITH_TIMEOUT(window()->isVisible(), 15'000);
    QVERIFY(!m_app->trayIcon().isReachable());
    m_tray.start();
}

void TrayServiceTest::comesBackWhenThePanelOfTheTrayGoes()
{
    closeWindow();
    QTest::qWait(longerThanItWaits);
    QVERIFY(!window()->isVisible());
    m_tray.crashPanel();
    QTRY_VERIFY_WITH_TIMEOUT(window()->isVisible(), 15'000);
    QVERIFY(!m_app->trayIcon().isReachable());
    // The service has kept the icon for the next panel.
    QCOMPARE(TrayService::icons().size(), 1);
    m_tray.startPanel();
    QVERIFY(m_app->trayIcon().isReachable());
}

void TrayServiceTest::staysAwayWhileTheTrayIsStartedAnew()
{
    closeWindow();
    QSignalSpy opened(window(), &QWindow::visibleChanged);
    m_tray.crash();
    m_tray.start();
    QTRY_COMPARE(TrayService::icons().size(), 1);
    QTest::qWait(longerThanItWaits);
    QCOMPARE(opened.count(), 0);
    QVERIFY(TrayService::choose(QStringLiteral("Open Korvane")));
    QTRY_VERIFY(window()->isVisible());
}

void TrayServiceTest::endsWithItsWindowOnceTheTrayHasGone()
{
    m_tray.crash();
    QTRY_VERIFY(!m_app->trayIcon().isReachable());
    QCOMPARE(runWithItsWindowClosed(), 0);
    m_tray.start();
}

void TrayServiceTest::livesOnAgainInATrayThatReturns()
{
    m_tray.crash();
    QTRY_VERIFY(!m_app->trayIcon().isReachable());
    m_tray.start();
    QTRY_COMPARE(TrayService::icons().size(), 1);
    QCOMPARE(runWithItsWindowClosed(), 7);
    QVERIFY(TrayService::choose(QStringLiteral("Open Korvane")));
    QTRY_VERIFY(window()->isVisible());
}

int main(int argc, char* argv[])
{
    TrayService tray;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvane"));
    TrayServiceTest test(tray);
    return QTest::qExec(&test, argc, argv);
}

#include "TrayServiceTest.moc"
