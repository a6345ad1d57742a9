// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/UI/Devices/Backups.h"
#include "Tests/UI/Devices/StandInDevices.h"
#include "Tests/UI/Scan/ScanScreenFixture.h"

#include <QTest>

#include <functional>
#include <string>

namespace Korvane {

/// The screen of the devices in the real window, with devices that the test plugs in.
class DeviceScreenFixture : public ScanScreenFixture {
    Q_OBJECT

protected:
    /// Plugs in a phone "Anna's iPhone", known as "a", with photos in two folders.
    StandInDevices phone() const;
    StandInDevices tools() const { return { m_test->host.environment, *m_folder / "devices" }; }
    void open() const { press("iPhone & iPad"); }
    /// The row of a folder, a file, or a backup, by its name; null when it cannot be seen.
    QQuickItem* rowOf(const char* name) const { return itemOf("QQuickControl", name); }
    /// The row of a device, by its name; null when it cannot be seen.
    QQuickItem* deviceRow(const char* name) const { return itemOf("QQuickItem", name); }
    /// The box that ticks a whole folder.
    QQuickItem* folderBox(const char* name) const { return itemOf("QQuickCheckBox", name); }
    QQuickItem* trashButton(const char* backup) const;
    /// The button beside this heading.
    QQuickItem* refreshButton(const char* heading) const;
    /// The names of the bars that can be seen.
    QStringList bars() const;
    void pressItem(QQuickItem* item) const;
    /// Starts the application anew, so that this comes before each listing of a folder, on the thread that lists.
    void restartWith(std::function<void(const std::filesystem::path&)> beforeListing);
    /// Opens the screen, ticks the first folder of `phone`, which has three files, and has the user asked about them.
    void askForThree() const;
    bool isTicked(const char* file) const;
    QString focused() const { return accessibleName(window()->activeFocusItem()); }
    std::filesystem::path downloaded(const char* name) const { return home() / "Downloads" / name; }

private:
    QQuickItem* itemOf(const char* kind, const char* name) const;
};

} // namespace Korvane
