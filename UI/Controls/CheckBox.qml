// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A check box; with a text beside it, or, in a row, with an accessible name alone.
T.CheckBox {
    id: control

    readonly property bool on: control.checkState !== Qt.Unchecked

    implicitWidth: indicator.width + (control.text === "" ? 0 : control.spacing + implicitContentWidth)
    implicitHeight: Math.max(24, implicitContentHeight)
    spacing: Theme.spacing
    opacity: control.enabled ? 1 : 0.45
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.name: control.text

    indicator: Rectangle {
        y: (control.height - height) / 2
        x: control.mirrored ? control.width - width : 0
        width: 18
        height: 18
        radius: 5
        color: control.on ? Theme.prominentFill : Theme.controlFill
        border.width: control.on ? 0 : 1
        border.color: control.hovered ? Theme.tertiaryLabel : Theme.controlBorder

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Theme.pressedFill
            visible: control.down
        }
        Symbol {
            anchors.centerIn: parent
            size: 14
            name: control.checkState === Qt.PartiallyChecked ? "minus" : "checkmark"
            color: Theme.onAccent
            visible: control.on
        }
        FocusRing {
            shown: control.visualFocus
            around: parent.radius
        }
    }

    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.indicator.width + control.spacing
        rightPadding: control.mirrored ? control.indicator.width + control.spacing : 0
        visible: control.text !== ""
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: Theme.label
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
