// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One application: its icon, its name over what it left behind, and what all of it occupies.
T.ItemDelegate {
    id: row

    required property int index
    required property string name
    required property string leftoversText
    required property string size
    required property string iconSource
    required property bool selected

    /// Whether the list is gone through with the keyboard.
    property bool byKeyboard: false

    leftPadding: Theme.spacingMedium + Theme.spacing
    rightPadding: Theme.spacingMedium + Theme.spacing
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    highlighted: row.selected
    text: row.name
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.leftoversText + ", " + row.size
    Accessible.selectable: true
    Accessible.selected: row.selected
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.clicked()

    contentItem: AppRowContent {
        name: row.name
        leftoversText: row.leftoversText
        size: row.size
        iconSource: row.iconSource
        selected: row.selected
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacingMedium
            anchors.rightMargin: Theme.spacingMedium
            anchors.topMargin: Theme.hairline
            anchors.bottomMargin: Theme.hairline
            radius: Theme.radius
            color: row.selected ? Theme.selectionFill : row.down ? Theme.pressedFill
                : row.hovered ? Theme.hoverFill : "transparent"
            border.width: row.selected && row.byKeyboard ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
    }
}
