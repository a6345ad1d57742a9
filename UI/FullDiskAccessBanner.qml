// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// Asks for Full Disk Access while it is missing; takes no space once it is given.
Item {
    id: banner

    required property FullDiskAccessViewModel viewModel

    visible: !banner.viewModel.granted
    implicitHeight: banner.visible ? row.implicitHeight + 2 * Theme.spacingMedium : 0
    Accessible.role: Accessible.Notification
    Accessible.name: qsTr("Grant Full Disk Access")

    Rectangle {
        anchors.fill: parent
        color: Theme.warningFill
    }
    Separator {
        anchors.bottom: parent.bottom
        width: parent.width
    }
    RowLayout {
        id: row

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.spacingHuge
        anchors.rightMargin: Theme.spacingHuge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingMedium

        Symbol {
            name: "lock.shield.fill"
            size: Metrics.symbolLarge
            color: Theme.orange
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingHair

            Label {
                Layout.fillWidth: true
                style: Label.Headline
                text: qsTr("Grant Full Disk Access")
                Accessible.role: Accessible.Heading
            }
            Label {
                Layout.fillWidth: true
                style: Label.Callout
                color: Theme.secondaryLabel
                wrapMode: Text.Wrap
                text: qsTr("Korvane can only see part of your junk until you allow it in System Settings.")
            }
        }
        Button {
            text: qsTr("Open Settings")
            onClicked: banner.viewModel.openSettings()
        }
    }
}
