// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "App/KorvaneApp.h"
#include "Tests/App/TrayHost.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Maintenance/HeldProcesses.h"
#include "Tests/UI/Support/QmlWarnings.h"
#include "Tests/UI/Support/Screen.h"

#include <QObject>
#include <QQuickWindow>
#include <QTest>

#include <memory>

namespace Korvane {

/// The application beside a real tray, by a real pointer and keyboard. Every warning fails the test that caused it.
class TrayFixture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    QQuickWindow* window() const { return m_app->mainWindow(); }
    QQuickWindow* panel() const { return m_app->panel().window(); }
    bool isPanelShown() const { return panel() != nullptr && panel()->isVisible() && panel()->isActive(); }
    void clickIcon(int button = 1) const { TrayHost::click(m_app->trayIcon().geometry().center(), button); }
    void showPanel() const
    {
        clickIcon();
        QTRY_VERIFY(isPanelShown());
    }
    void pressInPanel(const char* name) const;
    QString focused() const { return accessibleName(panel()->activeFocusItem()); }
    void closeWindow() const
    {
        window()->close();
        QTRY_VERIFY(!window()->isVisible());
    }

    TrayHost m_tray;
    std::unique_ptr<QmlWarnings> m_warnings;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<TestHost> m_test;
    std::shared_ptr<HeldProcesses> m_processes;
    std::unique_ptr<KorvaneApp> m_app;
};

} // namespace Korvane
