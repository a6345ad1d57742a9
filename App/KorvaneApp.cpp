// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/KorvaneApp.h"

#include "App/ApplicationMenu.h"
#include "UI/Uninstaller/ApplicationIconProvider.h"

#include <QApplication>
#include <QMenuBar>
#include <QQuickWindow>
#include <QUrl>

namespace Korvane {

KorvaneApp::KorvaneApp(const Host& host)
    : m_content(host, m_state)
    , m_trayIcon(host.defaults)
    , m_menuBar(makeApplicationMenu([this] { openSettings(); }))
{
    connect(&m_trayIcon, &TrayIcon::openRequested, this, &KorvaneApp::openMainWindow);
    connect(&m_trayIcon, &TrayIcon::scanRequested, this, &KorvaneApp::scanSystemJunk);
    connect(&m_trayIcon, &TrayIcon::quitRequested, qApp, &QApplication::quit);
    // Whether there is an icon to come back from is known only when the last window closes.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QApplication::lastWindowClosed, this, &KorvaneApp::leaveUnlessInTray);
    connect(qApp, &QApplication::applicationStateChanged, this, &KorvaneApp::comeBackWhenActivated);
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // The engine owns it.
    m_engine.addImageProvider(
        ApplicationIconProvider::name(), new ApplicationIconProvider(m_content.applicationIcons()));
    m_engine.setInitialProperties({ { QStringLiteral("viewModel"), QVariant::fromValue(&m_content) } });
}

bool KorvaneApp::start()
{
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Korvane/UI/ContentView.qml")));
    if (mainWindow() == nullptr)
        return false;
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
    if (window->windowState() == Qt::WindowMinimized || !window->isVisible())
        window->showNormal();
    window->raise();
    window->requestActivate();
}

void KorvaneApp::scanSystemJunk()
{
    openMainWindow();
    m_state.requestScan(CleanerModule::systemJunk);
}

void KorvaneApp::openSettings()
{
    openMainWindow();
    Q_EMIT m_content.settingsRequested();
}

void KorvaneApp::comeBackWhenActivated(Qt::ApplicationState state)
{
    // Picked in the Dock while no window is open.
    if (state == Qt::ApplicationActive && QGuiApplication::focusWindow() == nullptr && mainWindow() != nullptr
        && !mainWindow()->isVisible())
        openMainWindow();
}

void KorvaneApp::leaveUnlessInTray()
{
    if (!m_trayIcon.isReachable())
        QApplication::quit();
}

} // namespace Korvane
