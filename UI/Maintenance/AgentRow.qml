// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One background item: its label over what it runs, and for whom. Return, Space and Delete ask to remove it, if it may
/// be removed.
T.ItemDelegate {
    id: row

    required property int index
    required property string agentId
    required property string label
    required property string detail
    required property string path
    required property string domain
    required property bool removable

    /// Left and right of the card that the row stands on.
    required property real margin
    /// Whether the keyboard was used last, so that the row shows that it has it.
    property bool byKeyboard: false

    signal removalRequested

    function requestRemoval(): void {
        if (row.removable)
            row.removalRequested();
    }

    leftPadding: row.margin + (row.mirrored ? Theme.spacing : Theme.spacingLarge)
    rightPadding: row.margin + (row.mirrored ? Theme.spacingLarge : Theme.spacing)
    hoverEnabled: true
    Accessible.role: Accessible.ListItem
    Accessible.name: row.label
    Accessible.description: row.detail + ", " + row.domain
    Accessible.focusable: true
    Accessible.focused: row.activeFocus
    Accessible.onPressAction: row.requestRemoval()
    Keys.onReturnPressed: row.requestRemoval()
    Keys.onEnterPressed: row.requestRemoval()
    Keys.onSpacePressed: row.requestRemoval()
    Keys.onDeletePressed: row.requestRemoval()

    contentItem: AgentRowContent {
        label: row.label
        detail: row.detail
        domain: row.domain
        removable: row.removable
        onRemovalRequested: {
            row.forceActiveFocus(Qt.MouseFocusReason);
            row.requestRemoval();
        }
    }
    background: Item {
        Separator {
            x: row.margin + Theme.spacingLarge
            width: row.width - 2 * x
            visible: row.index > 0
        }
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: row.margin + Theme.spacingTiny
            anchors.rightMargin: row.margin + Theme.spacingTiny
            anchors.topMargin: Theme.spacingTiny
            anchors.bottomMargin: Theme.spacingTiny
            radius: Theme.radius
            color: row.hovered ? Theme.hoverFill : "transparent"
            border.width: row.activeFocus && (row.visualFocus || row.byKeyboard) ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
    }
    ToolTipArea {
        text: row.path
    }
}
