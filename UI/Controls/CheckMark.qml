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

    width: 18
    height: 18
    radius: 5
    color: box.on ? Theme.prominentFill : Theme.controlFill
    border.width: box.on ? 0 : 1
    border.color: box.hovered ? Theme.secondaryLabel : Theme.checkBorder

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: Theme.pressedFill
        visible: box.down
    }
    Symbol {
        anchors.centerIn: parent
        size: 14
        name: box.checkState === Qt.PartiallyChecked ? "minus" : "checkmark"
        color: Theme.onAccent
        visible: box.on
    }
}
