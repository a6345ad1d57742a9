// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A toggle for a setting: its text on the leading side, the switch on the trailing side.
T.Switch {
    id: control

    implicitWidth: implicitContentWidth + Theme.spacingLarge + 40
    implicitHeight: Math.max(Theme.controlHeight, implicitContentHeight)
    opacity: control.enabled ? 1 : 0.45
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.name: control.text

    indicator: Rectangle {
        x: control.mirrored ? 0 : control.width - width
        y: (control.height - height) / 2
        width: 40
        height: 24
        radius: 12
        color: control.checked ? Theme.prominentFill : Theme.switchOffFill

        Rectangle {
            x: 2 + control.visualPosition * 16
            y: 2
            width: 20
            height: 20
            radius: 10
            color: control.down ? Theme.pressedKnob : Theme.knob

            Behavior on x {
                enabled: !control.down

                NumberAnimation {
                    duration: Theme.durationShort
                    easing.type: Easing.OutCubic
                }
            }
        }
        FocusRing {
            shown: control.visualFocus
            around: parent.radius
        }
    }

    contentItem: Text {
        rightPadding: control.mirrored ? 0 : 40 + Theme.spacingLarge
        leftPadding: control.mirrored ? 40 + Theme.spacingLarge : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: Theme.label
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
