// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The selected application's icon, name and total size, and whether it runs.
Item {
    id: header

    required property UninstallerViewModel viewModel

    implicitHeight: Math.max(icon.height, texts.height)

    AppIcon {
        id: icon

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        size: Metrics.detailIcon
        source: header.viewModel.selected.iconSource
    }
    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: Theme.spacingLarge
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingTiny

        Label {
            width: parent.width
            style: Label.Title
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: ShownText.isolated(header.viewModel.selected.name)
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            style: Label.Title3
            color: Theme.secondaryLabel
            text: header.viewModel.selected.totalText
        }
        Label {
            width: parent.width
            style: Label.Caption
            color: Theme.tertiaryLabel
            visible: header.viewModel.selected.identifier !== ""
            elide: Text.ElideMiddle
            text: header.viewModel.selected.identifier
        }
        Row {
            anchors.left: parent.left
            visible: header.viewModel.selectedRunning
            spacing: Theme.spacing

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "exclamationmark.triangle.fill"
                size: Metrics.symbolSmall
                color: Theme.orange
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                style: Label.Callout
                color: Theme.warningLabel
                text: qsTr("App is currently running")
                Accessible.role: Accessible.AlertMessage
            }
        }
    }
}
