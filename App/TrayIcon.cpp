// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/TrayIcon.h"

#include "UI/Symbols/SymbolImage.h"

#include <QAction>
#include <QColor>
#include <QCursor>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>

namespace Korvane {

namespace {

QIcon icon()
{
    // Seen on light and on dark panels alike; where the platform tints such icons itself, it may.
    const QColor color(0x2f, 0x95, 0xff);
    QIcon icon;
    for (const int pixels : { 16, 22, 24, 32, 44, 48, 64 })
        icon.addPixmap(QPixmap::fromImage(symbolImage(QStringLiteral("sparkles"), pixels, color)));
    icon.setIsMask(true);
    return icon;
}

/// Whether an icon with a menu still hears of clicks.
bool iconMayHaveMenu() { return QGuiApplication::platformName() != QLatin1String("cocoa"); }

} // namespace

TrayIcon::TrayIcon(MenuBarViewModel& viewModel)
    : m_viewModel(viewModel)
    , m_lastCleanup(m_menu.addAction(QString()))
    , m_lastCleanupMoment(m_menu.addAction(QString()))
    , m_lastCleanupSeparator(m_menu.addSeparator())
{
    m_lastCleanup->setEnabled(false);
    m_lastCleanupMoment->setEnabled(false);
    addCommand(tr("Open Korvane"), &MenuBarViewModel::open);
    addCommand(tr("Scan System Junk"), &MenuBarViewModel::scanSystemJunk);
    addCommand(tr("Free Up RAM"), &MenuBarViewModel::freeUpRam);
    m_menu.addSeparator();
    addCommand(tr("Quit Korvane"), &MenuBarViewModel::quit);
    tellLastCleanup();
    connect(&m_viewModel, &MenuBarViewModel::lastCleanupChanged, this, &TrayIcon::tellLastCleanup);
    connect(&m_menu, &QMenu::aboutToShow, this, &TrayIcon::tellLastCleanup);
    connect(&m_menu, &QMenu::aboutToShow, this, &TrayIcon::menuOpened);
    m_icon.setToolTip(tr("Korvane"));
    if (iconMayHaveMenu())
        m_icon.setContextMenu(&m_menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::onActivated);
}

void TrayIcon::addCommand(const QString& text, void (MenuBarViewModel::*command)())
{
    connect(m_menu.addAction(text), &QAction::triggered, &m_viewModel, command);
}

void TrayIcon::show()
{
    m_icon.setIcon(icon());
    m_icon.show();
}

bool TrayIcon::isReachable() const { return m_icon.isVisible() && QSystemTrayIcon::isSystemTrayAvailable(); }

void TrayIcon::popUpMenu() { m_menu.popup(QCursor::pos()); }

void TrayIcon::onActivated(QSystemTrayIcon::ActivationReason reason)
{
    // Where the icon has a menu, the desktop opens it for the other button.
    if (reason == QSystemTrayIcon::Trigger || (reason == QSystemTrayIcon::Context && !iconMayHaveMenu()))
        Q_EMIT clicked();
    else if (reason == QSystemTrayIcon::DoubleClick)
        Q_EMIT doubleClicked();
}

void TrayIcon::tellLastCleanup()
{
    const bool recorded = m_viewModel.hasLastCleanup();
    m_lastCleanup->setText(m_viewModel.lastCleanup());
    m_lastCleanupMoment->setText(m_viewModel.lastCleanupMoment());
    for (QAction* line : { m_lastCleanup, m_lastCleanupMoment, m_lastCleanupSeparator })
        line->setVisible(recorded);
}

} // namespace Korvane
