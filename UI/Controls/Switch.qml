// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A toggle for a setting: its text on the leading side, the switch on the trailing side.
T.Switch {
    id: control

    implicitWidth: implicitContentWidth + Theme.spacingLarge + Metrics.switchWidth
    implicitHeight: Math.max(Metrics.controlHeight, implicitContentHeight)
    opacity: control.enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.name: control.text
    Accessible.checkable: true
    Accessible.checked: control.checked
    Accessible.onPressAction: control.press()
    Accessible.onToggleAction: control.press()

    /// Does what a press of the pointer does.
    function press(): void {
        if (!control.enabled)
            return;
        control.toggle();
        control.toggled();
    }

    indicator: Rectangle {
        x: control.mirrored ? 0 : control.width - width
        y: (control.height - height) / 2
        width: Metrics.switchWidth
        height: Metrics.switchHeight
        radius: height / 2
        color: control.checked ? Theme.checkedFill : Theme.switchOffFill

        Rectangle {
            x: Metrics.switchGap + control.visualPosition * (Metrics.switchWidth - Metrics.switchHeight)
            y: Metrics.switchGap
            width: Metrics.switchHeight - 2 * Metrics.switchGap
            height: width
            radius: width / 2
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
        rightPadding: control.mirrored ? 0 : Metrics.switchWidth + Theme.spacingLarge
        leftPadding: control.mirrored ? Metrics.switchWidth + Theme.spacingLarge : 0
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
