// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The applications as rows; the current one is the selected one. Arrow keys, Home, End and the Page keys select, typing
/// searches, Return goes on to the selected one.
ListView {
    id: list

    required property UninstallerViewModel viewModel

    /// Whether the pointer was the last to choose a row; the keyboard then needs no ring.
    property bool pointed: false
    readonly property int rowHeight: Metrics.tallRowHeight
    readonly property int rowsPerPage: Math.max(1, Math.floor(list.height / list.rowHeight) - 1)

    /// Something was typed that is to be searched for.
    signal typed(string text)
    /// The keyboard left the list upwards.
    signal leftUpwards
    signal detailRequested

    /// Brings the keyboard here, and selects a row if none is.
    function enter(): void {
        if (list.count === 0)
            return;
        if (list.currentIndex < 0)
            list.viewModel.selectRow(0);
        list.forceActiveFocus(Qt.TabFocusReason);
    }
    function moveTo(row: int): void {
        list.viewModel.selectRow(Math.max(0, Math.min(list.count - 1, row)));
    }
    /// Does what a key is for; whether it is for anything.
    function takesKey(key: int): bool {
        switch (key) {
        case Qt.Key_Up:
            if (list.currentIndex <= 0)
                list.leftUpwards();
            else
                list.moveTo(list.currentIndex - 1);
            return true;
        case Qt.Key_Down:
            list.moveTo(list.currentIndex + 1);
            return true;
        case Qt.Key_Home:
            list.moveTo(0);
            return true;
        case Qt.Key_End:
            list.moveTo(list.count - 1);
            return true;
        case Qt.Key_PageUp:
            list.moveTo(list.currentIndex - list.rowsPerPage);
            return true;
        case Qt.Key_PageDown:
            list.moveTo(list.currentIndex + list.rowsPerPage);
            return true;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            list.detailRequested();
            return true;
        default:
            return false;
        }
    }

    model: list.viewModel.rows
    currentIndex: list.viewModel.rows.selectedRow
    keyNavigationEnabled: false
    clip: true
    activeFocusOnTab: list.count > 0
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    bottomMargin: Theme.spacing
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Applications")
    T.ScrollBar.vertical: ScrollBar { }
    onActiveFocusChanged: list.pointed = false
    Keys.onPressed: event => {
        list.pointed = false;
        const commands = Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier;
        event.accepted = list.takesKey(event.key);
        if (event.accepted || (event.modifiers & commands) !== 0 || event.text.trim() === "")
            return;
        // What is typed and can be seen, not Tab, Escape or Delete.
        if (event.text.charCodeAt(0) > 0x20 && event.text.charCodeAt(0) !== 0x7f) {
            list.typed(event.text);
            event.accepted = true;
        }
    }

    ReadingOrder {
        of: list.contentItem
        rowHeight: list.rowHeight
    }

    // Without a selected row there is none to show that the keyboard is here.
    FocusRing {
        parent: list
        anchors.margins: Theme.focusRingWidth
        shown: list.activeFocus && list.currentIndex < 0
    }

    delegate: AppRow {
        width: list.width
        height: list.rowHeight
        byKeyboard: list.activeFocus && !list.pointed
        onClicked: {
            list.viewModel.selectRow(index);
            list.forceActiveFocus(Qt.MouseFocusReason);
            list.pointed = true;
        }
    }
}
