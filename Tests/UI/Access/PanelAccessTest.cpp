// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Maintenance/MaintenanceHome.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "Tests/UI/Support/AccessibleChecks.h"
#include "Tests/UI/Support/Screen.h"
#include "UI/MenuBarViewModel.h"
#include "UI/PreferenceKeys.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace Korvane;

/// What a screen reader and the keyboard find in the panel at the icon in the menu bar.
class PanelAccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void init();
    void cleanup();
    void withoutACleanup();
    void withACleanup();
    void aPressOfTheScreenReaderScans();

private:
    Host& host() const { return m_home->test.host; }
    void open();

    std::unique_ptr<MaintenanceHome> m_home;
    PlainNavigation m_navigation;
    QQmlEngine m_engine;
    std::unique_ptr<MenuBarViewModel> m_model;
    std::unique_ptr<QQuickWindow> m_window;
};

void PanelAccessTest::init()
{
    m_home = std::make_unique<MaintenanceHome>();
    m_model = std::make_unique<MenuBarViewModel>(host(), m_navigation);
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

void PanelAccessTest::cleanup()
{
    m_window.reset();
    m_model.reset();
    QVERIFY2(m_home->sentinel.isUnchanged(), m_home->sentinel.difference().c_str());
    m_home.reset();
}

void PanelAccessTest::open()
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/qt/qml/Korvane/UI/MenuBarView.qml")));
    m_window.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
        { { QStringLiteral("viewModel"), QVariant::fromValue(m_model.get()) } })));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void PanelAccessTest::withoutACleanup()
{
    open();
    QVERIFY(visibleTexts(m_window.get()).filter(QStringLiteral("Last cleanup")).isEmpty());
    // Four commands and nothing above them.
    QTRY_COMPARE(accessibleProblems(m_window.get()), QStringList(QStringLiteral("there is no heading")));
    QCOMPARE(keyboardProblems(m_window.get()), QStringList());
}

void PanelAccessTest::withACleanup()
{
    QVERIFY(host().defaults->setInteger(PreferenceKeys::lastCleanedBytes, 2'500'000'000));
    QVERIFY(host().defaults->setDouble(PreferenceKeys::lastCleanedDate, 1'000'000'000));
    open();
    QTRY_VERIFY(!visibleTexts(m_window.get()).filter(QStringLiteral("Last cleanup")).isEmpty());
    checkAccess(m_window.get(), "the panel with a cleanup");
}

void PanelAccessTest::aPressOfTheScreenReaderScans()
{
    open();
    QSignalSpy opened(m_model.get(), &MenuBarViewModel::openRequested);
    auto* row = control(m_window.get(), QStringLiteral("Scan System Junk"));
    QVERIFY(row != nullptr);
    auto* interface = QAccessible::queryAccessibleInterface(row);
    QVERIFY(interface != nullptr && interface->actionInterface() != nullptr);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(opened.count(), 1);
}

QTEST_MAIN(PanelAccessTest)
#include "PanelAccessTest.moc"
