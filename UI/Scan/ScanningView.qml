// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// How far the scan has come.
FocusScope {
    id: view

    required property ScanViewModel viewModel

    Keys.onEscapePressed: view.viewModel.cancel()

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.textWidth)
        spacing: Theme.spacingTiny

        ScanningPulse {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: view.viewModel.module.symbol
            accent: Theme.accent(view.viewModel.module.accent)
        }
        Item {
            width: 1
            height: Theme.spacingLarge
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title
            text: qsTr("Scanning…")
            Accessible.role: Accessible.Heading
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.spacing

            Label {
                style: Label.Title3
                text: view.viewModel.progress.foundText
            }
            Label {
                style: Label.Title3
                color: Theme.tertiaryLabel
                text: "·"
                Accessible.ignored: true
            }
            Label {
                style: Label.Title3
                color: Theme.secondaryLabel
                text: view.viewModel.progress.foundBytesText
            }
        }
        Label {
            width: parent.width
            height: Theme.lineHeight
            horizontalAlignment: Text.AlignHCenter
            style: Label.Caption
            color: Theme.tertiaryLabel
            elide: Text.ElideMiddle
            text: ShownText.isolated(view.viewModel.progress.currentPath)
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            text: qsTr("Cancel")
            onClicked: view.viewModel.cancel()
        }
    }
}
