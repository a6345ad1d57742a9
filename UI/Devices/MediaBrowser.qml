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

    /// What it showed before another listing took its place: the current row, the first that was seen, and how far that
    /// was scrolled off; no rows before the first listing.
    property int formerRow: 0
    property int formerTop: 0
    property real formerOffset: 0

    /// As the rows are of one height, what is above the first that is seen is known.
    function remember(): void {
        const above = list.contentY - list.originY;
        list.formerRow = list.currentIndex;
        list.formerTop = Math.floor(above / list.rowHeight);
        list.formerOffset = above - list.formerTop * list.rowHeight;
    }
    /// Shows again what it showed, or what is nearest to it.
    function goBack(): void {
        const row = list.tree.rowNow(list.formerRow);
        const first = list.tree.rowNow(list.formerTop);
        if (row >= 0)
            list.moveTo(row);
        if (first < 0) {
            list.positionViewAtBeginning();
            return;
        }
        list.positionViewAtIndex(first, ListView.Beginning);
        list.contentY += list.formerOffset;
        list.returnToBounds();
    }
    function takeKeyboard(): void {
        list.byKeyboard = true;
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    height: Math.min(list.count * list.rowHeight + list.topMargin + list.bottomMargin, list.tallest)
    rowHeight: Metrics.rowHeight
    topMargin: Theme.spacingTiny
    bottomMargin: Theme.spacingTiny
    model: list.tree
    Accessible.name: qsTr("Camera roll")

    Connections {
        target: list.viewModel

        function onListingChanging(): void {
            list.remember();
        }
        function onListingChanged(): void {
            list.goBack();
        }
    }
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
