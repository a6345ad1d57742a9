// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/App/TrayFixture.h"

#include "Tests/Support/Sentinel.h"
#include "UI/Background.h"

namespace Korvane {

void TrayFixture::initTestCase()
{
    const QString obstacle = m_tray.start();
    if (!obstacle.isEmpty())
        QSKIP(qPrintable(obstacle));
}

void TrayFixture::init()
{
    m_warnings = std::make_unique<QmlWarnings>();
    m_folder = std::make_unique<TemporaryFolder>();
    m_test = std::make_unique<TestHost>(makeTestHost(*m_folder));
    m_processes = std::make_shared<HeldProcesses>();
    m_test->host.processes = m_processes;
    writeFile(m_test->host.environment.scriptInterpreter, "");
    m_app = std::make_unique<KorvaneApp>(m_test->host);
    QVERIFY(m_app->start());
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTRY_VERIFY(m_app->trayIcon().isReachable());
    QTRY_VERIFY(!m_app->trayIcon().geometry().isEmpty());
    QRect place;
    do {
        place = m_app->trayIcon().geometry();
        QTest::qWait(200);
    } while (place != m_app->trayIcon().geometry());
}

void TrayFixture::cleanup()
{
    m_app.reset();
    finishBackgroundWork();
    const QStringList warnings = m_warnings->texts();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

void TrayFixture::pressInPanel(const char* name) const
{
    QQuickItem* row = control(panel(), QString::fromUtf8(name));
    QVERIFY2(row, name);
    TrayHost::click(row->mapToGlobal(QPointF(row->width() / 2, row->height() / 2)).toPoint(), 1);
    QTRY_VERIFY(!panel()->isVisible());
}

} // namespace Korvane
