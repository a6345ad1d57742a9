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

    DropShadow {
        anchors.fill: tile
        radius: tile.radius
        blur: Theme.heroGlow
        color: Theme.glow(hero.accent)
    }
    IconTile {
        id: tile

        size: Metrics.heroTile
        symbol: hero.symbol
        accent: hero.accent
    }
}
