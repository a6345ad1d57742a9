// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The devices on the cable, or why there is none.
Column {
    id: part

    required property IOSDeviceViewModel viewModel

    readonly property int found: part.viewModel.deviceState
    readonly property bool missing: part.found === IOSDeviceViewModel.ToolsMissing

    spacing: Theme.spacingMedium

    DeviceHeading {
        width: parent.width
        title: qsTr("Connected Device")
        refreshable: true
        refreshEnabled: !part.viewModel.detecting
        onRefreshRequested: part.viewModel.refreshDevices()
    }
    Card {
        width: parent.width
        height: part.found === IOSDeviceViewModel.Devices ? devices.height
            : part.found === IOSDeviceViewModel.Unknown ? Metrics.deviceRowHeight : none.implicitHeight + 2 * Theme.spacingHuge
        radius: Theme.radiusLarge

        BusySpinner {
            anchors.centerIn: parent
            width: Metrics.spinnerSmall
            height: Metrics.spinnerSmall
            color: Theme.secondaryLabel
            running: part.found === IOSDeviceViewModel.Unknown
        }
        EmptyState {
            id: none

            anchors.centerIn: parent
            width: parent.width - 2 * Theme.spacingHuge
            visible: part.missing || part.found === IOSDeviceViewModel.NoDevice
            symbol: part.missing ? "cable.connector" : "iphone.slash"
            title: part.missing ? qsTr("Device tools not installed") : qsTr("No device connected")
            description: part.missing ? part.viewModel.toolsHint
                                      : qsTr("Connect an iPhone or iPad with a cable and tap Trust on the device.")
        }
        KeyboardList {
            id: devices

            readonly property int mostRows: 4
            readonly property bool scrolls: devices.count > devices.mostRows

            width: parent.width
            // More than hang on cables at once are scrolled through; with fewer there is nothing to do here.
            height: Math.min(devices.count, devices.mostRows) * devices.rowHeight
            visible: part.found === IOSDeviceViewModel.Devices
            interactive: devices.scrolls
            activeFocusOnTab: devices.scrolls
            rowHeight: Metrics.deviceRowHeight
            model: part.viewModel.deviceRows
            Accessible.name: qsTr("Connected devices")

            delegate: DeviceRow {
                width: devices.width
                height: devices.rowHeight
                accent: Theme.accent(part.viewModel.module.accent)
            }
        }
    }
}
