// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/Appearance.h"
#include "UI/PreferenceKeys.h"

#include <QApplication>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace Korvane;
namespace fs = std::filesystem;

/// The real main window on a home of its own. Every warning fails the test that caused it.
class ContentViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showsTheDashboardAtFirst();
    void listsTheModulesInTheirSections();
    void aRowOpensItsModuleAndTheDashboardRowLeadsBack();
    void aCardOpensItsModule();
    void smartScanOpensSystemJunkAndIsTakenUp();
    void aRunningScreenTakesARequestWithoutASecondScan();
    void everythingIsReachedByTab();
    void arrowsMoveInTheSidebar();
    void returnPressesWhatHasTheFocus();
    void theBannerTakesSpaceOnlyWhileAccessIsMissing();
    void settingsOpenByTheirKeysAndSwitchThePreferences();
    void aboutTellsTheVersion();
    void looksRightInTheDarkAndUnderReducedMotion();

private:
    QQuickWindow* window() const { return m_app->mainWindow(); }
    QWindow* settingsWindow() const;
    void press(const QString& name) const { click(control(window(), name)); }

    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_test;
    std::unique_ptr<KorvaneApp> m_app;
};

void ContentViewTest::init()
{
    m_warnings = std::make_unique<QmlWarnings>();
    m_folder = std::make_unique<TemporaryFolder>();
    m_test = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
}

void ContentViewTest::cleanup()
{
    m_app.reset();
    const QStringList warnings = m_warnings->texts();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

QWindow* ContentViewTest::settingsWindow() const
{
    for (QWindow* candidate : QGuiApplication::topLevelWindows()) {
        if (candidate->title() == QStringLiteral("Settings"))
            return candidate;
    }
    return nullptr;
}

void ContentViewTest::showsTheDashboardAtFirst()
{
    const QStringList texts = visibleTexts(window());
    QVERIFY(texts.contains(QStringLiteral("Welcome to Korvane")));
    QVERIFY(texts.contains(QStringLiteral("Keep your Mac — and soon your iPhone — clean and fast.")));
    QVERIFY(texts.contains(QStringLiteral("Startup Disk")));
    QTRY_VERIFY(!visibleTexts(window()).filter(QStringLiteral(" free of ")).isEmpty());
}

void ContentViewTest::listsTheModulesInTheirSections()
{
    const QStringList expected{ QStringLiteral("Dashboard"), QStringLiteral("Cleanup"), QStringLiteral("System Junk"),
        QStringLiteral("Large & Old Files"), QStringLiteral("Duplicates"), QStringLiteral("Uninstaller"),
        QStringLiteral("Speed"), QStringLiteral("Maintenance"), QStringLiteral("Devices"),
        QStringLiteral("iPhone & iPad") };
    const QStringList texts = visibleTexts(window());
    const qsizetype first = texts.indexOf(expected.first());
    QCOMPARE(texts.mid(first, expected.size()), expected);
}

void ContentViewTest::aRowOpensItsModuleAndTheDashboardRowLeadsBack()
{
    press(QStringLiteral("Duplicates"));
    QVERIFY(m_app->state().selectedModule() == CleanerModule::duplicates);
    QVERIFY(visibleTexts(window()).contains(QStringLiteral("Find duplicate files and photos")));
    QVERIFY(!visibleTexts(window()).contains(QStringLiteral("Welcome to Korvane")));
    press(QStringLiteral("Dashboard"));
    QVERIFY(!m_app->state().selectedModule());
    QVERIFY(visibleTexts(window()).contains(QStringLiteral("Welcome to Korvane")));
}

void ContentViewTest::aCardOpensItsModule()
{
    // The sidebar comes first, the card second.
    const QList<QQuickItem*> maintenance = controls(window(), QStringLiteral("Maintenance"));
    QCOMPARE(maintenance.size(), 2);
    click(maintenance.last());
    QVERIFY(m_app->state().selectedModule() == CleanerModule::maintenance);
    QVERIFY(!m_app->state().pendingScan());
}

void ContentViewTest::smartScanOpensSystemJunkAndIsTakenUp()
{
    press(QStringLiteral("Smart Scan"));
    QVERIFY(m_app->state().selectedModule() == CleanerModule::systemJunk);
    QTRY_VERIFY(!m_app->state().pendingScan());
    // The home is empty, and so the scan that was started ends with nothing found.
    QTRY_VERIFY(visibleTexts(window()).contains(QStringLiteral("All Clean!")));
}

void ContentViewTest::aRunningScreenTakesARequestWithoutASecondScan()
{
    writeFile(*m_folder / "home/Library/Logs/app.log", std::size_t{ 100'000 });
    press(QStringLiteral("Smart Scan"));
    QTRY_VERIFY(control(window(), QStringLiteral("Rescan")));
    m_app->state().requestScan(CleanerModule::systemJunk);
    QVERIFY(!m_app->state().pendingScan());
    QVERIFY(control(window(), QStringLiteral("Rescan")));
}

void ContentViewTest::everythingIsReachedByTab()
{
    const QStringList reached = tabOrder(window());
    for (const auto& name : { QStringLiteral("Dashboard"), QStringLiteral("Smart Scan") })
        QCOMPARE(reached.count(name), 1);
    // Once in the sidebar, once as a card.
    for (const auto& name :
        { QStringLiteral("System Junk"), QStringLiteral("Large & Old Files"), QStringLiteral("Uninstaller"),
            QStringLiteral("Maintenance"), QStringLiteral("Duplicates"), QStringLiteral("iPhone & iPad") })
        QCOMPARE(reached.count(name), 2);
    QVERIFY(!reached.contains(QString()));
    QVERIFY(reached.indexOf(QStringLiteral("Dashboard")) < reached.indexOf(QStringLiteral("Smart Scan")));
}

void ContentViewTest::arrowsMoveInTheSidebar()
{
    control(window(), QStringLiteral("Dashboard"))->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window(), Qt::Key_Up);
    QCOMPARE(accessibleName(window()->activeFocusItem()), QStringLiteral("Dashboard"));
    QTest::keyClick(window(), Qt::Key_Down);
    QTest::keyClick(window(), Qt::Key_Down);
    QCOMPARE(accessibleName(window()->activeFocusItem()), QStringLiteral("Large & Old Files"));
    QTest::keyClick(window(), Qt::Key_Up);
    QCOMPARE(accessibleName(window()->activeFocusItem()), QStringLiteral("System Junk"));
}

void ContentViewTest::returnPressesWhatHasTheFocus()
{
    control(window(), QStringLiteral("Duplicates"))->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window(), Qt::Key_Return);
    QVERIFY(m_app->state().selectedModule() == CleanerModule::duplicates);
    control(window(), QStringLiteral("Dashboard"))->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window(), Qt::Key_Space);
    QVERIFY(!m_app->state().selectedModule());
}

void ContentViewTest::theBannerTakesSpaceOnlyWhileAccessIsMissing()
{
    const auto title = QStringLiteral("Grant Full Disk Access");
    QVERIFY(!visibleTexts(window()).contains(title));
    writeFile(*m_folder / "home/Library/Safari", "");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(visibleTexts(window()).contains(title));
    QVERIFY(visibleTexts(window()).contains(
        QStringLiteral("Korvane can only see part of your junk until you allow it in System Settings.")));
    press(QStringLiteral("Open Settings"));
    QCOMPARE(m_test->workspace->openedUrls().size(), std::size_t{ 1 });
    press(QStringLiteral("Duplicates"));
    QVERIFY(visibleTexts(window()).contains(title));
    fs::remove(*m_folder / "home/Library/Safari");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QVERIFY(!visibleTexts(window()).contains(title));
}

void ContentViewTest::settingsOpenByTheirKeysAndSwitchThePreferences()
{
    QVERIFY(settingsWindow() == nullptr);
    QTest::keyClick(window(), Qt::Key_Comma, Qt::ControlModifier);
    auto* settings = qobject_cast<QQuickWindow*>(settingsWindow());
    QVERIFY(settings != nullptr && settings->isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(settings));
    const auto key = PreferenceKeys::moveToTrashInsteadOfDelete;
    QQuickItem* toggle = control(settings, QStringLiteral("Move files to Trash instead of deleting"));
    QVERIFY(toggle != nullptr && toggle->property("checked").toBool());
    click(toggle);
    QVERIFY(!m_test->host.defaults->boolForKey(key, true));
    QVERIFY(m_test->host.defaults->setBool(key, true));
    QVERIFY(toggle->property("checked").toBool());
    QTest::keyClick(settings, Qt::Key_Escape);
    QVERIFY(!settings->isVisible());
    window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(window(), Qt::Key_Comma, Qt::ControlModifier);
    QVERIFY(settings->isVisible());
}

void ContentViewTest::aboutTellsTheVersion()
{
    QTest::keyClick(window(), Qt::Key_Comma, Qt::ControlModifier);
    auto* settings = qobject_cast<QQuickWindow*>(settingsWindow());
    QVERIFY(settings != nullptr && QTest::qWaitForWindowExposed(settings));
    QVERIFY(visibleTexts(settings).contains(QStringLiteral("Full Disk Access")));
    QVERIFY(control(settings, QStringLiteral("Grant…")) == nullptr);
    click(control(settings, QStringLiteral("About")));
    const QStringList texts = visibleTexts(settings);
    QVERIFY(texts.contains(QStringLiteral("Version —")));
    QVERIFY(texts.contains(QStringLiteral("Keep your Mac and iOS devices clean and fast.")));
    // Coming back to the tab, by the keyboard, looks again.
    writeFile(*m_folder / "home/Library/Safari", "");
    QTest::keyClick(settings, Qt::Key_Right);
    QTest::keyClick(settings, Qt::Key_Left);
    QVERIFY(control(settings, QStringLiteral("Grant…")) != nullptr);
    click(control(settings, QStringLiteral("Grant…")));
    QCOMPARE(m_test->workspace->openedUrls().size(), std::size_t{ 1 });
}

void ContentViewTest::looksRightInTheDarkAndUnderReducedMotion()
{
    const int type = qmlTypeId("Korvane.UI", 1, 0, "Appearance");
    auto* appearance = m_app->engine().singletonInstance<Appearance*>(type);
    QVERIFY(appearance != nullptr);
    appearance->setDark(false);
    appearance->setReducedMotion(true);
    const QColor light = window()->color();
    appearance->setDark(true);
    QVERIFY(window()->color().lightness() < light.lightness() / 2);
    press(QStringLiteral("System Junk"));
    QVERIFY(visibleTexts(window()).contains(QStringLiteral("Start Scan")));
}

QTEST_MAIN(ContentViewTest)
#include "ContentViewTest.moc"
