// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The module's symbol in its colour, large, with a soft glow.
Item {
    id: hero

    required property string symbol
    required property color accent

    implicitWidth: tile.width
    implicitHeight: tile.height
    Accessible.ignored: true

    SoftShadow {
        anchors.fill: tile
        anchors.margins: -28
        anchors.topMargin: -18
        anchors.bottomMargin: -38
        radius: tile.radius
        blur: 28
        color: Qt.alpha(hero.accent, Theme.dark ? 0.35 : 0.4)
    }
    IconTile {
        id: tile

        size: 112
        symbol: hero.symbol
        accent: hero.accent
    }
}
