// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A rounded surface with a soft shadow that holds things belonging together.
Item {
    id: card

    default property alias content: surface.data
    property real radius: Theme.radiusCard
    property bool shadow: true

    DropShadow {
        // Even one that is not shown would be painted at its full size.
        anchors.fill: card.shadow ? surface : undefined
        visible: card.shadow
        radius: card.radius
    }
    // The material is translucent: without a base of its own the shadow would show through it.
    Rectangle {
        anchors.fill: surface
        visible: card.shadow
        radius: card.radius
        color: Theme.window
    }
    Rectangle {
        id: surface

        anchors.fill: parent
        radius: card.radius
        color: Theme.cardBackground
        border.width: Theme.hairline
        border.color: Theme.cardBorder
    }
}
