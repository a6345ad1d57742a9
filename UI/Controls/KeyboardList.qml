// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// Rows of one height, made only as far as they are seen. Tab leads to the current one; arrow keys, Home, End and the
/// Page keys move.
ListView {
    id: list

    required property int rowHeight
    /// How much below the list is to be seen with it.
    property real below: 0
    /// Whether the keyboard was used last, so that the current row shows it.
    property bool byKeyboard: false

    readonly property int rowsPerPage: Math.max(1, Math.floor(list.height / list.rowHeight) - 2)

    function moveTo(row: int): void {
        list.currentIndex = Math.max(0, Math.min(list.count - 1, row));
    }
    /// The pointer has come down on a row.
    function pressed(row: int): void {
        list.byKeyboard = false;
        list.currentIndex = row;
        list.forceActiveFocus(Qt.MouseFocusReason);
    }

    clip: true
    activeFocusOnTab: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    currentIndex: 0
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: ScrollBar { }

    // Other rows have a current one too.
    onCountChanged: {
        if (list.count > 0 && (list.currentIndex < 0 || list.currentIndex >= list.count))
            list.moveTo(list.currentIndex);
    }
    Keys.onPressed: event => {
        list.byKeyboard = true;
        switch (event.key) {
        case Qt.Key_Home:
            list.moveTo(0);
            break;
        case Qt.Key_End:
            list.moveTo(list.count - 1);
            break;
        case Qt.Key_PageUp:
            list.moveTo(list.currentIndex - list.rowsPerPage);
            break;
        case Qt.Key_PageDown:
            list.moveTo(list.currentIndex + list.rowsPerPage);
            break;
        default:
            return;
        }
        event.accepted = true;
    }

    ReadingOrder {
        of: list.contentItem
        rowHeight: list.rowHeight
    }
}
