// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A folder of the camera roll, which a press opens or closes, or one of its files, which a press ticks.
T.CheckDelegate {
    id: row

    required property int index
    required property int folder
    required property int file
    required property string name
    required property string symbol
    required property string count
    required property int ticks
    required property bool open

    /// Whether the row shows that it has the keyboard although it did not get it by Tab.
    property bool showsFocus: false

    readonly property bool isFolder: row.file < 0
    readonly property int startPadding: row.isFolder ? Metrics.treeFolderInset : Metrics.treeFileInset

    /// The pointer has come down on the box of a folder.
    signal boxPressed
    signal tickRequested
    signal openRequested(bool wanted)
    /// To the folder that the file is in.
    signal leaveRequested

    function act(): void {
        if (row.isFolder)
            row.openRequested(!row.open);
        else
            row.tickRequested();
    }
    function step(open: bool): void {
        if (row.isFolder)
            row.openRequested(open);
        else if (!open)
            row.leaveRequested();
    }

    leftPadding: row.mirrored ? Theme.spacingHuge : row.startPadding
    rightPadding: row.mirrored ? row.startPadding : Theme.spacingHuge
    hoverEnabled: true
    text: row.name
    tristate: true
    checkState: row.ticks
    nextCheckState: () => row.ticks
    // Of a folder too: what is ticked in it is what is to be known first. A press opens it, toggling ticks.
    Accessible.role: Accessible.CheckBox
    Accessible.name: row.name
    Accessible.description: !row.isFolder ? "" : row.count + ", " + (row.open ? qsTr("open") : qsTr("closed"))
    Accessible.checkable: true
    Accessible.checked: row.ticks === Qt.Checked
    Accessible.checkStateMixed: row.ticks === Qt.PartiallyChecked
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.act()
    Accessible.onToggleAction: row.tickRequested()
    onClicked: row.act()
    Keys.onReturnPressed: row.act()
    Keys.onEnterPressed: row.act()
    Keys.onRightPressed: row.step(!row.mirrored)
    Keys.onLeftPressed: row.step(row.mirrored)
    Keys.onSpacePressed: row.tickRequested()

    indicator: MediaRowMark {
        x: row.mirrored ? row.width - width : 0
        name: row.name
        isFolder: row.isFolder
        open: row.open
        ticks: row.ticks
        down: row.down
        hovered: row.hovered
        height: row.height
        onBoxPressed: row.boxPressed()
        onTickRequested: row.tickRequested()
    }
    contentItem: MediaRowContent {
        name: row.name
        symbol: row.symbol
        count: row.count
        isFolder: row.isFolder
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
            border.width: row.activeFocus && (row.visualFocus || row.showsFocus) ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
    }
}
