// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Korvane.UI

/// Rings that spread from a symbol while something is being searched; they move only while they can be seen.
Item {
    id: pulse

    required property string symbol
    required property color accent

    readonly property bool moving: Theme.animated && pulse.visible && pulse.Window.visibility !== Window.Hidden
        && pulse.Window.visibility !== Window.Minimized

    implicitWidth: 220
    implicitHeight: 220
    Accessible.ignored: true

    Repeater {
        model: 3

        Rectangle {
            id: ring

            required property int index
            /// How far this ring has spread, from 0 to 1.
            property real progress: (ring.index + 1) / 4

            anchors.centerIn: parent
            width: 96 + (pulse.width - 96) * ring.progress
            height: width
            radius: width / 2
            color: Qt.alpha(pulse.accent, 0.16 * (1 - ring.progress))
            border.width: 1.5
            border.color: Qt.alpha(pulse.accent, 0.55 * (1 - ring.progress))

            SequentialAnimation {
                running: pulse.moving

                PauseAnimation {
                    duration: ring.index * 800
                }
                NumberAnimation {
                    target: ring
                    property: "progress"
                    from: 0
                    to: 1
                    duration: 2400
                    easing.type: Easing.OutQuad
                    loops: Animation.Infinite
                }
            }
        }
    }
    IconTile {
        anchors.centerIn: parent
        size: 96
        radius: 48
        symbol: pulse.symbol
        accent: pulse.accent
    }
}
