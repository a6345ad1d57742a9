// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// How much of a whole there is, as a bar.
T.ProgressBar {
    id: control

    property color tint: Theme.blue

    implicitWidth: 200
    implicitHeight: Metrics.barHeight
    Accessible.role: Accessible.ProgressBar
    onValueChanged: ScreenReader.announceValue(control)

    background: Rectangle {
        radius: height / 2
        color: Theme.trackFill
    }

    contentItem: Item {
        Rectangle {
            x: control.mirrored ? parent.width - width : 0
            width: control.visualPosition === 0 || isNaN(control.visualPosition)
                ? 0 : Math.max(height, (control.mirrored ? 1 - control.visualPosition : control.visualPosition) * parent.width)
            height: parent.height
            radius: height / 2
            color: control.tint

            Behavior on width {
                NumberAnimation {
                    duration: Theme.durationLong
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
