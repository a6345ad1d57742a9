// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Shows that something is under way and nobody knows for how long.
Item {
    id: spinner

    property bool running: true
    property color color: Theme.blue

    implicitWidth: 40
    implicitHeight: 40
    visible: spinner.running
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Busy")

    Repeater {
        model: 12

        Rectangle {
            id: spoke

            required property int index
            readonly property real strength: ((spoke.index + 12 - steps.current) % 12) / 11

            width: Math.max(2, spinner.width / 12)
            height: spinner.height * 0.28
            radius: width / 2
            x: (spinner.width - width) / 2
            color: spinner.color
            opacity: Theme.faintOpacity + (1 - Theme.faintOpacity) * spoke.strength
            transformOrigin: Item.Top
            transform: Rotation {
                origin.x: spinner.width / 24
                origin.y: spinner.height / 2
                angle: spoke.index * 30
            }
        }
    }

    Timer {
        id: steps

        property int current: 0

        interval: Theme.spinnerStep
        repeat: true
        running: Theme.animated && spinner.running && spinner.visible
        onTriggered: steps.current = (steps.current + 1) % 12
    }
}
