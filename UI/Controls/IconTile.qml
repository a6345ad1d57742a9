// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A symbol in white on a rounded tile filled with a gradient.
Item {
    id: tile

    required property string symbol
    /// The colour that the tile is filled with.
    property color accent: Theme.blue
    /// The gradient of the fill; that of the accent until set.
    property var gradient: Theme.accentGradient(tile.accent)
    property real size: Metrics.moduleTile
    property real radius: Math.round(tile.size * Theme.tileRounding)

    implicitWidth: tile.size
    implicitHeight: tile.size
    Accessible.ignored: true

    // White stays readable where the gradient thins out.
    Rectangle {
        anchors.fill: fill
        radius: tile.radius
        color: Theme.tileBase(tile.accent)
    }
    GradientFill {
        id: fill

        width: tile.size
        height: tile.size
        anchors.centerIn: parent
        radius: tile.radius
        colors: tile.gradient
    }
    Symbol {
        anchors.centerIn: fill
        name: tile.symbol
        size: Math.round(tile.size * Theme.tileSymbol)
        color: Theme.onAccent
    }
}
