// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One found item: a check box as wide as the row, that bears the item's name.
T.CheckDelegate {
    id: row

    required property int index
    required property string itemId
    required property string name
    required property string folder
    required property string path
    required property string size
    required property bool ticked
    required property bool shielded

    /// Whether the row that has the focus is to show it although it did not get it by Tab.
    property bool showsFocus: false

    /// The menu is wanted, at this place of the row.
    signal menuRequested(real x, real y)

    implicitHeight: 40
    leftPadding: 52
    rightPadding: Theme.spacingHuge
    hoverEnabled: true
    checked: row.ticked
    text: row.name
    Accessible.role: Accessible.CheckBox
    Accessible.name: row.name
    Accessible.description: row.shielded ? row.size + ", " + row.folder + ". " + shield.help
                                         : row.size + ", " + row.folder
    Accessible.checkable: true
    Accessible.checked: row.checked
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.click()
    Accessible.onToggleAction: row.click()

    Keys.onMenuPressed: row.menuRequested(row.leftPadding, row.height)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) {
            row.menuRequested(row.leftPadding, row.height);
            event.accepted = true;
        }
    }

    // On an item of its own: a handler makes the item that it is on take every button, and the right one would tick.
    Item {
        anchors.fill: parent

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => row.menuRequested(eventPoint.position.x, eventPoint.position.y)
        }
    }

    indicator: CheckMark {
        x: 20
        y: (row.height - height) / 2
        checkState: row.checkState
        down: row.down
        hovered: row.hovered
    }

    contentItem: Item {
        Label {
            id: nameText

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width * (row.width > 900 ? 0.5 : 0.46))
            elide: Text.ElideMiddle
            text: row.name
            Accessible.ignored: true
        }
        Symbol {
            id: shield

            readonly property string help: qsTr("Not selected by default — may be in use or needed by the system.")

            anchors.verticalCenter: parent.verticalCenter
            anchors.left: nameText.right
            anchors.leftMargin: Theme.spacing
            visible: row.shielded
            name: "exclamationmark.shield"
            size: 16
            color: Theme.warningLabel

            ToolTipArea {
                text: shield.help
            }
        }
        Label {
            x: parent.width * (row.width > 900 ? 0.5 : 0.46) + Theme.spacingHuge + Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            width: sizeText.x - x - Theme.spacingLarge
            style: Label.Callout
            color: Theme.tertiaryLabel
            elide: Text.ElideMiddle
            text: row.folder
            Accessible.ignored: true

            ToolTipArea {
                text: row.path
            }
        }
        Label {
            id: sizeText

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 84
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideNone
            color: Theme.secondaryLabel
            text: row.size
            Accessible.ignored: true
        }
        ToolTipArea {
            anchors.fill: nameText
            text: row.path
        }
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.spacing
            anchors.topMargin: 1
            anchors.bottomMargin: 1
            radius: Theme.radius
            color: row.down ? Theme.pressedFill : row.hovered ? Theme.hoverFill : "transparent"
            border.width: row.visualFocus || (row.activeFocus && row.showsFocus) ? 2 : 0
            border.color: Theme.focusRing
        }
    }
}
