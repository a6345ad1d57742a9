// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One backup: whose it is, of which system and day, and its size. Return, Space and Delete ask to remove it.
T.ItemDelegate {
    id: row

    required property int index
    required property string backupId
    required property string name
    required property string detail
    required property string path
    required property string size

    /// Whether the row shows that it has the keyboard although it did not get it by Tab.
    property bool showsFocus: false

    /// The pointer has come down on the row.
    signal pointed
    signal removalRequested

    leftPadding: row.mirrored ? Theme.spacingLarge : Theme.spacingHuge
    rightPadding: row.mirrored ? Theme.spacingHuge : Theme.spacingLarge
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.size + (row.detail === "" ? "" : ", " + row.detail)
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.removalRequested()
    onPressed: row.pointed()
    Keys.onReturnPressed: row.removalRequested()
    Keys.onEnterPressed: row.removalRequested()
    Keys.onSpacePressed: row.removalRequested()
    Keys.onDeletePressed: row.removalRequested()

    contentItem: BackupRowContent {
        name: row.name
        detail: row.detail
        size: row.size
        onRemovalRequested: {
            row.pointed();
            row.removalRequested();
        }
    }
    background: Item {
        Separator {
            x: Theme.spacingLarge
            width: row.width - 2 * x
            visible: row.index > 0
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.spacingTiny
            radius: Theme.radius
            color: row.hovered ? Theme.hoverFill : "transparent"
            border.width: row.activeFocus && (row.visualFocus || row.showsFocus) ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
    }
    ToolTipArea {
        text: row.path
    }
}
