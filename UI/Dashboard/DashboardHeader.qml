// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Greets the user.
Item {
    id: header

    implicitHeight: 64

    SoftShadow {
        anchors.fill: tile
        anchors.margins: -16
        anchors.topMargin: -10
        anchors.bottomMargin: -22
        radius: tile.radius
        blur: 16
        color: Qt.alpha(Theme.blue, 0.35)
    }
    IconTile {
        id: tile

        anchors.left: parent.left
        size: 64
        radius: 18
        symbol: "sparkles"
        accent: Theme.blue
    }
    Column {
        anchors.left: tile.right
        anchors.leftMargin: Theme.spacingLarge
        anchors.right: parent.right
        anchors.verticalCenter: tile.verticalCenter
        spacing: Theme.spacingTiny

        Label {
            width: parent.width
            style: Label.LargeTitle
            text: qsTr("Welcome to Korvane")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            style: Label.Title3
            color: Theme.secondaryLabel
            text: qsTr("Keep your Mac — and soon your iPhone — clean and fast.")
        }
    }
}
