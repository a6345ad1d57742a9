// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The backups of devices that lie on this computer.
SteadyScope {
    id: part

    required property IOSDeviceViewModel viewModel

    readonly property bool measuring: part.viewModel.scanningBackups
    readonly property bool empty: !part.measuring && rows.count === 0

    /// Brings the keyboard to the row that had it, or to the nearest; as soon as there is one.
    function takeKeyboard(): void {
        part.forceActiveFocus(Qt.OtherFocusReason);
        if (rows.visible)
            rows.forceActiveFocus(Qt.OtherFocusReason);
        else if (part.empty)
            part.goOn(false);
    }

    height: column.height
    // Where nothing is left the keyboard goes back to what comes before.
    onEmptyChanged: {
        if (part.empty)
            part.goOn(false);
    }
    // What had the keyboard goes while the backups are measured, and comes back.
    onMeasuringChanged: {
        if (part.measuring)
            rows.focus = false;
        else if (part.astray && rows.count > 0)
            rows.forceActiveFocus(Qt.OtherFocusReason);
    }

    Column {
        id: column

        width: parent.width
        spacing: Theme.spacingMedium

        DeviceHeading {
            width: parent.width
            title: qsTr("iOS Backups on This Mac")
            subtitle: qsTr("Old iTunes/Finder backups can take tens of gigabytes.")
        }
        Card {
            width: parent.width
            height: rows.visible ? rows.height : busy.implicitHeight
            radius: Theme.radiusLarge

            BusyLine {
                id: busy

                x: Theme.spacingHuge
                width: parent.width - 2 * x
                visible: part.measuring
                text: qsTr("Measuring backups…")
            }
            Label {
                anchors.left: parent.left
                anchors.leftMargin: Theme.spacingHuge
                anchors.verticalCenter: parent.verticalCenter
                visible: part.empty
                color: Theme.secondaryLabel
                text: qsTr("No backups found.")
            }
            KeyboardList {
                id: rows

                readonly property int mostRows: 8

                width: parent.width
                // More than most people ever have are scrolled through.
                height: Math.min(rows.count, rows.mostRows) * rows.rowHeight
                visible: !part.measuring && rows.count > 0
                rowHeight: Metrics.tallRowHeight
                model: part.viewModel.backupRows
                Accessible.name: qsTr("Backups")

                delegate: BackupRow {
                    width: rows.width
                    height: rows.rowHeight
                    showsFocus: rows.byKeyboard
                    onPointed: rows.pressed(index)
                    onRemovalRequested: part.viewModel.ask(backupId)
                }
            }
        }
    }
}
