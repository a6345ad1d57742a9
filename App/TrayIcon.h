// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/MenuBarViewModel.h"

#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

class QAction;

namespace Korvane {

/// The icon in the menu bar or system tray with its native menu, which says and does what the panel does.
///
/// Main thread. Needs a QApplication. macOS shows the menu of an icon on every click: there the icon has none, and the
/// panel is all.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    /// `viewModel` must outlive the icon.
    explicit TrayIcon(MenuBarViewModel& viewModel);

    /// Puts the icon into the tray, now or as soon as the desktop has one.
    void show();
    /// Whether the user can see the icon, and so come back to an application without windows.
    bool isReachable() const;
    /// Where the icon is on the desktop; empty where that is not told.
    QRect geometry() const { return m_icon.geometry(); }

    const QMenu& menu() const { return m_menu; }
    /// Opens the menu under the pointer.
    void popUpMenu();

Q_SIGNALS:
    /// The icon was clicked.
    void clicked();
    /// The icon was clicked twice in a row.
    void doubleClicked();
    /// The menu is opened.
    void menuOpened();

private:
    void addCommand(const QString& text, void (MenuBarViewModel::*command)());
    void tellLastCleanup();
    void onActivated(QSystemTrayIcon::ActivationReason reason);

    MenuBarViewModel& m_viewModel;
    QMenu m_menu;
    QAction* m_lastCleanup; ///< Owned by the menu, like those below.
    QAction* m_lastCleanupMoment;
    QAction* m_lastCleanupSeparator;
    QSystemTrayIcon m_icon;
};

} // namespace Korvane
