// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The box of a check box.
Rectangle {
    id: box

    required property int checkState
    property bool down: false
    property bool hovered: false

    readonly property bool on: box.checkState !== Qt.Unchecked

    width: Metrics.checkBoxSize
    height: Metrics.checkBoxSize
    radius: Theme.radiusTiny
    color: box.on ? Theme.checkedFill : Theme.controlFill
    border.width: box.on ? 0 : Theme.hairline
    border.color: box.hovered ? Theme.secondaryLabel : Theme.checkBorder

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: Theme.pressedFill
        visible: box.down
    }
    Symbol {
        anchors.centerIn: parent
        size: Metrics.checkBoxSize
        name: box.checkState === Qt.PartiallyChecked ? "minus" : "checkmark"
        color: Theme.onAccent
        visible: box.on
    }
}
