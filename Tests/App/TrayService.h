// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/ChildProgram.h"
#include "Tests/Support/TemporaryFolder.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace Korvane {

/// A session bus of the test's own, the system tray of a desktop on it, and the hand that presses what is in that tray.
///
/// Make it before the QApplication, which connects to the bus that it finds. A bus or a tray that does not come ends
/// the test.
class TrayService {
public:
    /// A line of a menu as the desktop is told it.
    struct Line {
        int id;
        QString text; ///< Empty for a separator.
        bool isEnabled;
    };

    /// Starts the bus, without a tray.
    TrayService();

    /// Why there can be none; empty when the bus runs.
    const QString& obstacle() const { return m_obstacle; }

    /// Starts the service that keeps the list of icons, and the panel that shows them.
    void start();
    void startPanel();
    /// The end of both, or of the panel alone, as by a crash.
    void crash();
    void crashPanel() { m_panel.reset(); }
    /// Whether icons are shown to anybody.
    static bool hasPanel();

    /// The icons that are in the tray, by the names that their applications have on the bus.
    static QStringList icons();
    /// What the first of them says of itself, by the names that the tray's protocol has for it.
    static QVariant told(const char* name);
    /// The first line of what is said under the pointer.
    static QString toolTip();
    static QList<QSize> iconSizes();
    /// Presses it: "Activate", "SecondaryActivate" or "ContextMenu"; whether it heard.
    static bool press(const char* how);

    /// Opens its menu, which the desktop draws.
    static QList<Line> openMenu();
    static QStringList menuTexts();
    /// Presses a line of it; whether there is one that can be pressed.
    static bool choose(const QString& text);

private:
    TemporaryFolder m_folder;
    QString m_obstacle;
    std::unique_ptr<ChildProgram> m_bus;
    std::unique_ptr<ChildProgram> m_service;
    std::unique_ptr<ChildProgram> m_panel;
};

} // namespace Korvane
