// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// How much is chosen of how much was found, and what can be done with all of it.
Item {
    id: header

    required property ScanViewModel viewModel

    implicitHeight: Math.max(figures.height, buttons.height)

    CountingBytes {
        id: selected

        duration: Theme.durationLong
        bytes: header.viewModel.selectedBytes
    }
    Column {
        id: figures

        anchors.left: parent.left
        anchors.right: buttons.left
        anchors.rightMargin: Theme.spacingLarge

        Label {
            width: parent.width
            text: selected.text
            font.pixelSize: Theme.figure
            font.weight: Font.Bold
            font.letterSpacing: Theme.figureTracking
            Accessible.role: Accessible.Heading
            Accessible.name: selected.finalText
        }
        Label {
            width: parent.width
            style: Label.Title3
            color: Theme.secondaryLabel
            text: header.viewModel.totalText
        }
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacing

        Button {
            text: header.viewModel.allSelectableSelected ? qsTr("Deselect All") : qsTr("Select All")
            onClicked: header.viewModel.toggleSelectAll()
        }
        Button {
            symbol: "arrow.clockwise"
            text: qsTr("Rescan")
            onClicked: header.viewModel.startScan()
        }
    }
}
