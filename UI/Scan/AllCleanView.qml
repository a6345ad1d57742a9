// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A scan that found nothing.
FocusScope {
    id: view

    required property ScanViewModel viewModel

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.spacingHuge
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.textWidth)
        spacing: Theme.spacing

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "checkmark.circle.fill"
            size: Metrics.outcomeSymbol
            color: Theme.green
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.LargeTitle
            text: qsTr("All Clean!")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title3
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: qsTr("Nothing found to clean in this module.")
        }
        Item {
            width: 1
            height: Theme.spacingLarge
        }
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            large: true
            symbol: "arrow.clockwise"
            text: qsTr("Scan Again")
            onClicked: view.viewModel.startScan()
        }
    }
}
