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

    implicitWidth: Metrics.pulseSize
    implicitHeight: Metrics.pulseSize
    Accessible.ignored: true

    Repeater {
        model: 3

        Rectangle {
            id: ring

            required property int index
            /// How far this ring has spread, from 0 to 1.
            property real progress: (ring.index + 1) / 4

            anchors.centerIn: parent
            width: core.width + (pulse.width - core.width) * ring.progress
            height: width
            radius: width / 2
            color: Theme.pulseFill(pulse.accent, 1 - ring.progress)
            border.width: Theme.hairline
            border.color: Theme.pulseLine(pulse.accent, 1 - ring.progress)

            SequentialAnimation {
                running: pulse.moving

                PauseAnimation {
                    duration: ring.index * Theme.pulsePeriod / 3
                }
                NumberAnimation {
                    target: ring
                    property: "progress"
                    from: 0
                    to: 1
                    duration: Theme.pulsePeriod
                    easing.type: Easing.OutQuad
                    loops: Animation.Infinite
                }
            }
        }
    }
    IconTile {
        id: core

        anchors.centerIn: parent
        size: Metrics.pulseCore
        radius: size / 2
        symbol: pulse.symbol
        accent: pulse.accent
    }
}
