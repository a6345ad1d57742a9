// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The whole page: the tasks above the background items, which are made only as far as they are seen. Arrow keys, Home,
/// End and the Page keys move among the items.
ListView {
    id: list

    required property MaintenanceViewModel viewModel

    readonly property real margin: (list.width - Math.min(list.width - 2 * Theme.pageMargin, Metrics.pageWidth)) / 2
    readonly property int rowHeight: Metrics.tallRowHeight
    readonly property int rowsPerPage: Math.max(1, Math.floor(list.height / list.rowHeight) - 1)
    readonly property real startY: list.originY - list.topMargin
    /// The row that Tab leads to.
    property int row: 0
    /// Whether the keyboard was used last.
    property bool byKeyboard: false
    /// Whether the keyboard is here, but on none of the rows: the one that had it has gone.
    readonly property bool astray: list.Window.activeFocusItem === list
    /// Whether the top of the page is to be seen.
    property bool atTop: true

    /// Brings the keyboard to the row, or to the nearest that there is; without any to the tasks.
    function moveTo(row: int): void {
        if (list.count === 0) {
            header.forceActiveFocus(Qt.OtherFocusReason);
            return;
        }
        const target = Math.max(0, Math.min(list.count - 1, row));
        list.positionViewAtIndex(target, ListView.Contain);
        list.row = target;
        const item = list.itemAtIndex(target);
        if (item !== null)
            item.forceActiveFocus(list.byKeyboard ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }
    function leaveUpwards(): void {
        const item = list.itemAtIndex(0);
        const above = item === null ? null : item.nextItemInFocusChain(false);
        if (above !== null)
            above.forceActiveFocus(Qt.BacktabFocusReason);
    }
    /// Gives the keyboard to a row in place of one that had it and has gone.
    function keepKeyboard(): void {
        if (list.astray)
            list.moveTo(list.row);
    }
    /// Does what a key is for; whether it is for anything.
    function takesKey(key: int): bool {
        switch (key) {
        case Qt.Key_Up:
            if (list.row === 0)
                list.leaveUpwards();
            else
                list.moveTo(list.row - 1);
            return true;
        case Qt.Key_Down:
            list.moveTo(list.row + 1);
            return true;
        case Qt.Key_Home:
            list.moveTo(0);
            return true;
        case Qt.Key_End:
            list.moveTo(list.count - 1);
            return true;
        case Qt.Key_PageUp:
            list.moveTo(list.row - list.rowsPerPage);
            return true;
        case Qt.Key_PageDown:
            list.moveTo(list.row + list.rowsPerPage);
            return true;
        default:
            return false;
        }
    }
    // By itself a list keeps its rows in their places when what is above them grows.
    function stayAtTop(): void {
        if (list.atTop)
            list.contentY = list.startY;
    }

    model: list.viewModel.agentRows
    // The list's own current item would take the keyboard away from the tasks whenever it changes.
    currentIndex: -1
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: Metrics.minimumWindowHeight
    // Not the list's own header and footer: those cannot be made of components that are bound.
    topMargin: header.height
    bottomMargin: Theme.spacingHuge + (list.count === 0 ? list.rowHeight : 0)
    clip: true
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Background items")
    T.ScrollBar.vertical: ScrollBar { }

    onStartYChanged: settling.restart()
    onContentYChanged: {
        list.atTop = list.contentY <= list.startY + 1;
        // What Tab leads to must exist.
        if (list.count > 0 && list.itemAtIndex(list.row) === null)
            list.row = Math.max(0, list.indexAt(list.width / 2, list.contentY + list.height / 2));
    }
    onCountChanged: {
        list.row = Math.max(0, Math.min(list.count - 1, list.row));
        settling.restart();
    }
    onAstrayChanged: settling.restart()
    Keys.onPressed: event => {
        if (header.activeFocus)
            return;
        list.byKeyboard = true;
        event.accepted = list.takesKey(event.key);
    }

    delegate: AgentRow {
        id: agent

        width: list.width
        height: list.rowHeight
        margin: list.margin
        byKeyboard: list.byKeyboard
        focusPolicy: agent.activeFocus || agent.index === list.row ? Qt.StrongFocus : Qt.ClickFocus
        onActiveFocusChanged: {
            if (!agent.activeFocus)
                return;
            list.row = agent.index;
            if (agent.focusReason === Qt.MouseFocusReason)
                list.byKeyboard = false;
        }
        onRemovalRequested: list.viewModel.ask(agent.agentId)
    }

    MaintenanceHeader {
        id: header

        parent: list.contentItem
        y: list.startY
        width: list.width
        height: header.implicitHeight
        margin: list.margin
        viewModel: list.viewModel
        focus: true
    }
    Card {
        parent: list.contentItem
        z: -1
        x: list.margin
        y: list.originY
        width: list.width - 2 * list.margin
        height: Math.max(1, list.count) * list.rowHeight
        radius: Theme.radiusLarge
        shadow: false
    }
    FocusReveal {
        page: list
    }
    // Once the list has finished changing.
    Timer {
        id: settling

        interval: 0
        onTriggered: {
            list.stayAtTop();
            list.keepKeyboard();
        }
    }
}
