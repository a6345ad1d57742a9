// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "App/AppState.h"
#include "App/MenuBarPanel.h"
#include "App/TrayIcon.h"
#include "App/TrayWatch.h"
#include "Platform/Host.h"
#include "UI/ContentViewModel.h"
#include "UI/MenuBarViewModel.h"

#include <QGuiApplication>
#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

class QMenuBar;
class QQuickWindow;

namespace Korvane {

/// The application with its scenes: the main window, the settings window that it opens, and the icon in the menu bar
/// with its panel.
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
    MenuBarPanel& panel() { return m_panel; }
    MenuBarViewModel& menuBar() { return m_menuBarViewModel; }
    QQmlApplicationEngine& engine() { return m_engine; }
    /// The main window; null until started.
    QQuickWindow* mainWindow() const;

    /// Shows the main window, also after it was closed or made an icon, in front of others.
    void openMainWindow();
    /// The same with the desktop's permission to be in front (XDG_ACTIVATION_TOKEN), which whoever asks for it has.
    void openMainWindowWith(const QByteArray& activationToken);
    /// Shows the main window and asks for a scan of the system junk.
    void scanSystemJunk() { m_menuBarViewModel.scanSystemJunk(); }
    /// Shows the settings window.
    void openSettings();

private:
    void connectMenuBar();
    void showPanelOrMenu();
    void leaveUnlessInTray();
    void comeBackWithoutTray();
    void comeBackWhenPicked(Qt::ApplicationState state);

    AppState m_state;
    ContentViewModel m_content;
    MenuBarViewModel m_menuBarViewModel;
    TrayIcon m_trayIcon;
    std::shared_ptr<QMenuBar> m_applicationMenu;
    QQmlApplicationEngine m_engine;
    MenuBarPanel m_panel;
    Qt::WindowStates m_statesWhenClosed; ///< Of the main window.
    Qt::ApplicationState m_lastState = QGuiApplication::applicationState();
    std::unique_ptr<TrayWatch> m_trayWatch;
};

} // namespace Korvane
