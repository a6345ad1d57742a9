// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A check box; with a text beside it, or, in a row, with an accessible name alone. `clicked` is for whoever keeps the
/// state to change it; the box only shows it.
T.CheckBox {
    id: control

    implicitWidth: indicator.width + (control.text === "" ? 0 : control.spacing + implicitContentWidth)
    implicitHeight: Math.max(24, implicitContentHeight)
    spacing: Theme.spacing
    nextCheckState: () => control.checkState
    opacity: control.enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.name: control.text
    Accessible.checkable: true
    Accessible.checked: control.checkState === Qt.Checked
    Accessible.checkStateMixed: control.checkState === Qt.PartiallyChecked
    Accessible.onPressAction: control.press()
    Accessible.onToggleAction: control.press()

    /// Does what a press of the pointer does.
    function press(): void {
        if (control.enabled)
            control.clicked();
    }

    indicator: CheckMark {
        y: (control.height - height) / 2
        x: control.mirrored ? control.width - width : 0
        checkState: control.checkState
        down: control.down
        hovered: control.hovered

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
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
