// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Tells whether Full Disk Access is given, and leads to where it is.
Item {
    id: row

    required property FullDiskAccessViewModel viewModel

    readonly property string accessState: row.viewModel.granted ? qsTr("Granted") : qsTr("Not granted")

    implicitHeight: Metrics.headingHeight

    Symbol {
        id: mark

        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingHair
        anchors.verticalCenter: parent.verticalCenter
        size: Metrics.symbolMedium
        name: row.viewModel.granted ? "checkmark.circle.fill" : "exclamationmark.triangle.fill"
        color: row.viewModel.granted ? Theme.green : Theme.orange
    }
    Label {
        anchors.left: mark.right
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Full Disk Access")
        Accessible.description: row.accessState
    }
    Button {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.viewModel.granted
        text: qsTr("Grant…")
        onClicked: row.viewModel.openSettings()
    }
}
