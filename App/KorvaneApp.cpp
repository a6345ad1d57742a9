// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"

#include "App/ApplicationMenu.h"
#include "App/PanelPosition.h"
#include "UI/Controls/ScreenReader.h"
#include "UI/Uninstaller/ApplicationIconProvider.h"

#include <QApplication>
#include <QMenuBar>
#include <QQuickWindow>
#include <QUrl>

namespace Korvane {

KorvaneApp::KorvaneApp(const Host& host)
    : m_content(host, m_state)
    , m_menuBarViewModel(host, m_state)
    , m_trayIcon(m_menuBarViewModel)
    , m_applicationMenu(makeApplicationMenu([this] { openSettings(); }))
    , m_panel(m_engine, m_menuBarViewModel)
{
    ScreenReader::install();
    connectMenuBar();
    // Whether there is an icon to come back from is known only when the last window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QApplication::lastWindowClosed, this, &KorvaneApp::leaveUnlessInTray);
    connect(qApp, &QApplication::applicationStateChanged, this, &KorvaneApp::comeBackWhenPicked);
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // The engine owns it.
    m_engine.addImageProvider(
        ApplicationIconProvider::name(), new ApplicationIconProvider(m_content.applicationIcons()));
    m_engine.setInitialProperties({ { QStringLiteral("viewModel"), QVariant::fromValue(&m_content) } });
}

void KorvaneApp::connectMenuBar()
{
    connect(&m_menuBarViewModel, &MenuBarViewModel::openRequested, this, &KorvaneApp::openMainWindow);
    connect(&m_menuBarViewModel, &MenuBarViewModel::quitRequested, qApp, &QApplication::quit);
    connect(&m_trayIcon, &TrayIcon::clicked, this, &KorvaneApp::showPanelOrMenu);
    connect(&m_trayIcon, &TrayIcon::menuOpened, &m_panel, &MenuBarPanel::hide);
    connect(&m_trayIcon, &TrayIcon::doubleClicked, this, [this] {
        m_panel.hide();
        openMainWindow();
    });
    m_trayWatch = TrayWatch::make([this] { comeBackWithoutTray(); });
}

void KorvaneApp::showPanelOrMenu()
{
    const QRect icon = m_trayIcon.geometry();
    switch (panelPlace(QGuiApplication::platformName(), icon)) {
    case PanelPlace::AtIcon:
        m_panel.toggle(icon);
        break;
    case PanelPlace::AtPointer:
        m_trayIcon.popUpMenu();
        break;
    case PanelPlace::Nowhere:
        openMainWindow();
        break;
    }
}

bool KorvaneApp::start()
{
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Korvane/UI/ContentView.qml")));
    if (mainWindow() == nullptr)
        return false;
    // What was as large as the screen comes back so; a window manager forgets it with the window.
    connect(mainWindow(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            m_statesWhenClosed = mainWindow()->windowStates();
    });
    // The icon is not needed for the first picture: it comes after it.
    QMetaObject::invokeMethod(&m_trayIcon, &TrayIcon::show, Qt::QueuedConnection);
    return true;
}

QQuickWindow* KorvaneApp::mainWindow() const
{
    const QList<QObject*> roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.first());
}

void KorvaneApp::openMainWindow()
{
    QQuickWindow* window = mainWindow();
    if (window == nullptr)
        return;
    if (!window->isVisible())
        window->setWindowStates(m_statesWhenClosed & ~Qt::WindowMinimized);
    else
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    // Showing it by its own name would make it of ordinary size.
    window->setVisible(true);
    window->raise();
    window->requestActivate();
}

void KorvaneApp::openMainWindowWith(const QByteArray& activationToken)
{
    // Where Qt looks for it when a window is to be activated.
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken);
    openMainWindow();
}

void KorvaneApp::openSettings()
{
    openMainWindow();
    Q_EMIT m_content.settingsRequested();
}

void KorvaneApp::comeBackWhenPicked(Qt::ApplicationState state)
{
    // The Dock tells an application that it was picked by making it active although it is so already. One that merely
    // becomes active, as after a question of another program or for its panel, was not asked for its window.
    const bool wasPicked = state == Qt::ApplicationActive && m_lastState == Qt::ApplicationActive;
    m_lastState = state;
    if (wasPicked && QGuiApplication::focusWindow() == nullptr && mainWindow() != nullptr && !mainWindow()->isVisible())
        openMainWindow();
}

void KorvaneApp::leaveUnlessInTray()
{
    if (!m_trayIcon.isReachable())
        QApplication::quit();
}

void KorvaneApp::comeBackWithoutTray()
{
    // What is left without any window and without an icon could never be ended, nor seen to finish what it does.
    if (mainWindow() != nullptr && !mainWindow()->isVisible() && !m_trayIcon.isReachable())
        openMainWindow();
}

} // namespace Korvane
