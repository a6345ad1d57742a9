// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The folders of the camera roll, and below each that is open its files. Space ticks a file or a whole folder; Return,
/// and the arrow keys to the sides, open a folder and close it.
KeyboardList {
    id: list

    required property IOSMediaViewModel viewModel
    required property real tallest

    readonly property MediaTreeModel tree: list.viewModel.rows

    function takeKeyboard(): void {
        list.byKeyboard = true;
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    height: Math.min(list.count * list.rowHeight + list.topMargin + list.bottomMargin, list.tallest)
    rowHeight: Metrics.rowHeight
    // What can be done with what is ticked.
    below: Metrics.controlHeight + Theme.spacingMedium
    topMargin: Theme.spacingTiny
    bottomMargin: Theme.spacingTiny
    model: list.tree
    Accessible.name: qsTr("Camera roll")

    delegate: MediaRow {
        width: list.width
        height: list.rowHeight
        showsFocus: list.byKeyboard
        onPressed: list.pressed(index)
        onBoxPressed: list.pressed(index)
        onTickRequested: {
            if (isFolder)
                list.tree.toggleFolder(folder);
            else
                list.tree.toggleFile(folder, file);
        }
        onOpenRequested: wanted => list.tree.setOpen(folder, wanted)
        onLeaveRequested: list.moveTo(list.tree.rowOfFolder(folder))
    }
}
