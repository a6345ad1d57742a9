// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Scan/ScanScreenFixture.h"
#include "Tests/UI/Support/AccessibleChecks.h"

#include <QTest>

using namespace Korvane;

/// What a screen reader and the keyboard find on the dashboard, in the sidebar, the banner and the application menu.
class DashboardAccessTest : public ScanScreenFixture {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QAccessible::setActive(true); }
    void theDashboard();
    void theBanner();
    void theApplicationMenu();
};

void DashboardAccessTest::theDashboard()
{
    QTRY_VERIFY(!visibleTexts(window()).filter(utf8(" free of ")).isEmpty());
    checkAccess(window(), "the dashboard");
}

void DashboardAccessTest::theBanner()
{
    writeFile(home() / "Library/Safari", "");
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    QTRY_VERIFY(shows("Grant Full Disk Access"));
    checkAccess(window(), "the banner over the dashboard");
}

void DashboardAccessTest::theApplicationMenu()
{
    press("Application menu");
    QTRY_VERIFY(shows(utf8("Settings…")));
    checkTree(window(), "the application menu");
}

QTEST_MAIN(DashboardAccessTest)
#include "DashboardAccessTest.moc"
