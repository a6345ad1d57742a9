// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QStringList>

namespace Korvane {

/// A real system tray on the X display of the test, as a panel has one, for as long as it lives.
class TrayHost {
public:
    /// Starts it; why there can be none, or nothing when it runs.
    QString start();
    /// Ends it at once, as a crash would.
    void crash();

    /// Presses a button of the real pointer there.
    static void click(const QPoint& place, int button);
    /// Presses the first button twice, as fast as it takes to be one gesture, however busy the machine is.
    static void doubleClick(const QPoint& place);
    /// Presses a key on the real keyboard, by its X name.
    static void press(const QString& key);

private:
    static void act(const QStringList& arguments);

    QProcess m_process;
};

} // namespace Korvane
