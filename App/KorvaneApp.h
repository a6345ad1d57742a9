// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "App/AppState.h"
#include "App/TrayIcon.h"
#include "Platform/Host.h"
#include "UI/ContentViewModel.h"

#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

class QMenuBar;
class QQuickWindow;

namespace Korvane {

/// The application with its scenes: the main window, the settings window that it opens, and the menu bar icon.
///
/// Main thread. Made once, after the QApplication, and destroyed before it.
class KorvaneApp : public QObject {
    Q_OBJECT

public:
    explicit KorvaneApp(const Host& host);

    /// Opens the main window; false when it cannot be loaded, which a broken build alone can cause.
    bool start();

    AppState& state() { return m_state; }
    TrayIcon& trayIcon() { return m_trayIcon; }
    QQmlApplicationEngine& engine() { return m_engine; }
    /// The main window; null until started.
    QQuickWindow* mainWindow() const;

    /// Shows the main window, also after it was closed, in front of others.
    void openMainWindow();
    /// Shows the main window and asks for a scan of the system junk.
    void scanSystemJunk();
    /// Shows the settings window.
    void openSettings();

private:
    void leaveUnlessInTray();
    void comeBackWhenActivated(Qt::ApplicationState state);

    AppState m_state;
    ContentViewModel m_content;
    TrayIcon m_trayIcon;
    std::shared_ptr<QMenuBar> m_menuBar;
    QQmlApplicationEngine m_engine;
};

} // namespace Korvane
