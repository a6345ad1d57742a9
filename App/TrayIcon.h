// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/UserDefaults.h"

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

class QAction;

namespace Korvane {

/// The icon in the menu bar or system tray with its menu: what was cleaned last, and the quick ways in and out.
///
/// Main thread. Needs a QApplication.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    explicit TrayIcon(std::shared_ptr<UserDefaults> defaults);

    /// Puts the icon into the tray, now or as soon as the desktop has one.
    void show();
    /// Whether the user can see the icon, and so come back to an application without windows.
    bool isReachable() const;

    const QMenu& menu() const { return m_menu; }

Q_SIGNALS:
    void openRequested();
    void scanRequested();
    void quitRequested();

private:
    void updateLastCleanup();

    std::shared_ptr<UserDefaults> m_defaults;
    QMenu m_menu;
    QAction* m_lastCleanup; ///< Owned by the menu.
    QAction* m_lastCleanupSeparator; ///< Owned by the menu.
    QSystemTrayIcon m_icon;
    std::unique_ptr<UserDefaults::Observation> m_observation;
};

} // namespace Korvane
