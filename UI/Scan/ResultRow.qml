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
    required property string category
    required property bool ticked
    required property bool shielded
    required property string sharedHelp

    /// Whether the row that has the focus is to show it although it did not get it by Tab.
    property bool showsFocus: false
    /// Whether the Space bar is down for the whole category, so that letting go of it must not tick the row.
    property bool togglesCategory: false

    /// Where the name begins.
    readonly property real nameStart: row.mirrored ? row.width - row.rightPadding : row.leftPadding
    readonly property string shieldHelp: qsTr("Not selected by default — may be in use or needed by the system.")
    /// What is to be known of the row beside what it shows.
    readonly property string remarks: (row.shielded ? ". " + row.shieldHelp : "")
                                      + (row.sharedHelp === "" ? "" : (row.shielded ? " " : ". ") + row.sharedHelp)

    /// Whether the press that comes now is one of the Space bar.
    property bool bySpace: false

    /// The pointer has come down on the row.
    signal pointed
    /// The menu is wanted, at this place of the row.
    signal menuRequested(real x, real y, bool byKeyboard)
    /// The whole category of the row is to be ticked, or unticked.
    signal categoryToggled

    function press(): void {
        row.toggle();
        row.toggled();
    }

    implicitHeight: Metrics.rowHeight
    leftPadding: row.mirrored ? Theme.spacingHuge : Metrics.rowTextInset
    rightPadding: row.mirrored ? Metrics.rowTextInset : Theme.spacingHuge
    hoverEnabled: true
    checked: row.ticked
    text: row.name
    Accessible.role: Accessible.CheckBox
    Accessible.name: row.name
    Accessible.description: row.size + ", " + row.folder + row.remarks
    Accessible.checkable: true
    Accessible.checked: row.checked
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.press()
    Accessible.onToggleAction: row.press()

    Keys.onMenuPressed: row.menuRequested(row.nameStart, row.height, true)
    onPressed: {
        if (!row.bySpace)
            row.pointed();
        row.bySpace = false;
    }
    Keys.onPressed: event => {
        row.bySpace = event.key === Qt.Key_Space && event.modifiers !== Qt.ShiftModifier;
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) {
            row.menuRequested(row.nameStart, row.height, true);
            event.accepted = true;
        } else if (event.key === Qt.Key_Space && event.modifiers === Qt.ShiftModifier) {
            row.categoryToggled();
            row.togglesCategory = true;
            event.accepted = true;
        }
    }
    Keys.onReleased: event => {
        event.accepted = event.key === Qt.Key_Space && row.togglesCategory;
        if (event.accepted)
            row.togglesCategory = false;
    }

    // On an item of its own: a handler makes the item that it is on take every button, and the right one would tick.
    Item {
        anchors.fill: parent

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => row.menuRequested(eventPoint.position.x, eventPoint.position.y, false)
        }
    }

    indicator: CheckMark {
        x: row.mirrored ? row.width - width - Metrics.rowInset : Metrics.rowInset
        y: (row.height - height) / 2
        checkState: row.checkState
        down: row.down
        hovered: row.hovered
    }

    contentItem: ResultRowContent {
        name: row.name
        folder: row.folder
        size: row.size
        shielded: row.shielded
    }

    ToolTipArea {
        // By the property and not by an id, which would make the row lay out its content before it is needed.
        readonly property ResultRowContent content: row.contentItem as ResultRowContent

        readonly property string first: content !== null && content.shieldHovered ? row.shieldHelp : row.path

        text: row.sharedHelp === "" ? first : first + "\n" + row.sharedHelp
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.spacing
            anchors.topMargin: Theme.hairline
            anchors.bottomMargin: Theme.hairline
            radius: Theme.radius
            color: row.down ? Theme.pressedFill : row.hovered ? Theme.hoverFill : "transparent"
            border.width: row.visualFocus || (row.activeFocus && row.showsFocus) ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
    }
}
