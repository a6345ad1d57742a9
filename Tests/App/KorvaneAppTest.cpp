// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"
#include "App/TerminationSignals.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Background.h"
#include "UI/PreferenceKeys.h"

#include <QAction>
#include <QApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>

using namespace Korvane;

namespace {

QStringList visibleTexts(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        if (action->isVisible() && !action->isSeparator())
            texts.append(action->text());
    }
    return texts;
}

QAction* command(const QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class KorvaneAppTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensTheMainWindowWithoutWarnings();
    void theMenuTellsTheLastCleanupOnceThereIsOne();
    void theMenuOpensAClosedWindow();
    void theMenuScansSystemJunkInAClosedWindow();
    void aScreenThatIsGoingTakesNoScanFromItsSuccessor();
    void comesBackWhenPickedWithoutAWindow();
    void theApplicationMenuOpensTheSettings();
    void endsWithItsLastWindowWhereThereIsNoTray();
    void endsInOrderWhenAskedToBySignal_data();
    void endsInOrderWhenAskedToBySignal();
};

void KorvaneAppTest::opensTheMainWindowWithoutWarnings()
{
    const TemporaryFolder folder;
    const QmlWarnings warnings;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    QVERIFY(QTest::qWaitForWindowExposed(korvane.mainWindow()));
    QCOMPARE(korvane.mainWindow()->title(), QStringLiteral("Korvane"));
    QCOMPARE(korvane.mainWindow()->minimumSize(), QSize(960, 620));
    QCOMPARE(warnings.texts(), QStringList());
}

void KorvaneAppTest::theMenuTellsTheLastCleanupOnceThereIsOne()
{
    const TemporaryFolder folder;
    const TestHost test = makeTestHost(folder);
    AppState state;
    MenuBarViewModel menuBar(test.host, state);
    const TrayIcon tray(menuBar);
    const QStringList commands{ QStringLiteral("Open Korvane"), QStringLiteral("Scan System Junk"),
        QStringLiteral("Free Up RAM"), QStringLiteral("Quit Korvane") };
    QCOMPARE(visibleTexts(tray.menu()), commands);
    QVERIFY(test.host.defaults->setInteger(PreferenceKeys::lastCleanedBytes, 2'500'000));
    QVERIFY(test.host.defaults->setDouble(PreferenceKeys::lastCleanedDate, 1.0));
    const QStringList lines{ QStringLiteral("Last cleanup: 2.5 MB"), menuBar.lastCleanupMoment() };
    QVERIFY(lines.last().endsWith(QStringLiteral(" years ago")));
    QCOMPARE(visibleTexts(tray.menu()), lines + commands);
}

void KorvaneAppTest::theMenuOpensAClosedWindow()
{
    const TemporaryFolder folder;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    korvane.mainWindow()->close();
    QVERIFY(!korvane.mainWindow()->isVisible());
    command(korvane.trayIcon().menu(), QStringLiteral("Open Korvane"))->trigger();
    QVERIFY(korvane.mainWindow()->isVisible());
    QVERIFY(!korvane.state().selectedModule());
}

void KorvaneAppTest::theMenuScansSystemJunkInAClosedWindow()
{
    const TemporaryFolder folder;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    korvane.mainWindow()->close();
    QSignalSpy asked(&korvane.state(), &Navigation::pendingScanChanged);
    command(korvane.trayIcon().menu(), QStringLiteral("Scan System Junk"))->trigger();
    QVERIFY(korvane.mainWindow()->isVisible());
    QVERIFY(korvane.state().selectedModule() == CleanerModule::systemJunk);
    QVERIFY(asked.count() > 0);
    // The scan must not be the last to hold the host, which ends on the main thread.
    finishBackgroundWork();
}

void KorvaneAppTest::aScreenThatIsGoingTakesNoScanFromItsSuccessor()
{
    const TemporaryFolder folder;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    // All in one turn of the event loop: the first screen is still there when the last one comes.
    korvane.state().setSelectedModule(CleanerModule::systemJunk);
    korvane.state().setSelectedModule(CleanerModule::maintenance);
    korvane.scanSystemJunk();
    QTRY_VERIFY(visibleTexts(korvane.mainWindow()).contains(QStringLiteral("All Clean!")));
    finishBackgroundWork();
}

void KorvaneAppTest::comesBackWhenPickedWithoutAWindow()
{
    const TemporaryFolder folder;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    korvane.mainWindow()->close();
    QTRY_VERIFY(QGuiApplication::focusWindow() == nullptr);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!korvane.mainWindow()->isVisible());
    // As after the question for a password, which the panel caused.
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(!korvane.mainWindow()->isVisible());
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(korvane.mainWindow()->isVisible());
}

void KorvaneAppTest::theApplicationMenuOpensTheSettings()
{
    const TemporaryFolder folder;
    const QmlWarnings warnings;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    korvane.openSettings();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    QVERIFY(std::any_of(windows.begin(), windows.end(),
        [](const QWindow* window) { return window->title() == QStringLiteral("Settings") && window->isVisible(); }));
    QCOMPARE(warnings.texts(), QStringList());
}

void KorvaneAppTest::endsWithItsLastWindowWhereThereIsNoTray()
{
    if (QSystemTrayIcon::isSystemTrayAvailable())
        QSKIP("This desktop has a tray");
    const TemporaryFolder folder;
    KorvaneApp korvane(makeTestHost(folder).host);
    QVERIFY(korvane.start());
    QTimer::singleShot(0, korvane.mainWindow(), &QWindow::close);
    QTimer deadline;
    deadline.callOnTimeout([] { QCoreApplication::exit(1); });
    deadline.start(10'000);
    QCOMPARE(QApplication::exec(), 0);
}

void KorvaneAppTest::endsInOrderWhenAskedToBySignal_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("hang up") << SIGHUP;
}

void KorvaneAppTest::endsInOrderWhenAskedToBySignal()
{
    QFETCH(const int, signal);
    const TerminationSignals terminationSignals;
    QTimer::singleShot(0, qApp, [=] { std::raise(signal); });
    QTimer deadline;
    deadline.callOnTimeout([] { QCoreApplication::exit(1); });
    deadline.start(10'000);
    QCOMPARE(QApplication::exec(), 0);
}

QTEST_MAIN(KorvaneAppTest)
#include "KorvaneAppTest.moc"
