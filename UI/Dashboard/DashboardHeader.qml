// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Greets the user.
Item {
    id: header

    implicitHeight: Metrics.greetingTile

    DropShadow {
        anchors.fill: tile
        radius: tile.radius
        blur: Theme.tileGlow
        color: Theme.glow(Theme.blue)
    }
    IconTile {
        id: tile

        anchors.left: parent.left
        size: Metrics.greetingTile
        radius: Theme.tileRadius
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
