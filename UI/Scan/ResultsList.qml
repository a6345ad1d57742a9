// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The findings as rows under sticky headings. Arrow keys, Home, End and the Page keys move; Space ticks a row, with Shift
/// its category; the Menu key, or Shift and F10, opens the row's menu.
KeyboardList {
    id: list

    required property ScanViewModel viewModel
    /// Makes the headings. Not to be created in this file: when Qt 6.4 uses a heading again it looks for "section" in the
    /// context of the component, finds the list's own there, and leaves the heading with the title of another category.
    required property Component heading

    /// Opens the menu of a row with the corner where reading begins at this place of it.
    function openMenu(row: ResultRow, x: real, y: real, byKeyboard: bool): void {
        menu.itemId = row.itemId;
        menu.title = row.name;
        menu.parent = row;
        menu.show(row, row.mirrored ? x - menu.width : x, y, byKeyboard);
    }

    /// Goes to a row, the first of its category, with the heading above it at the top.
    function lead(row: int, byKeyboard: bool): void {
        list.byKeyboard = byKeyboard;
        list.moveTo(row);
        list.positionViewAtIndex(row, ListView.Beginning);
        list.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    model: list.viewModel.rows
    rowHeight: Metrics.rowHeight
    // What the keyboard goes to is never under the heading that stays at the top.
    highlightRangeMode: ListView.ApplyRange
    preferredHighlightBegin: Metrics.headingHeight
    preferredHighlightEnd: list.height
    bottomMargin: Theme.spacing
    Accessible.name: qsTr("Findings")

    section.property: "category"
    section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
    section.delegate: list.heading

    delegate: ResultRow {
        width: list.width
        showsFocus: list.byKeyboard
        onToggled: list.viewModel.rows.setTicked(itemId, checked)
        onCategoryToggled: list.viewModel.rows.toggleCategory(category)
        onPointed: {
            list.byKeyboard = false;
            list.currentIndex = index;
        }
        onMenuRequested: (x, y, byKeyboard) => {
            list.byKeyboard = byKeyboard;
            list.currentIndex = index;
            list.forceActiveFocus();
            list.openMenu(this as ResultRow, x, y, byKeyboard);
        }
    }

    ItemMenu {
        id: menu

        actions: list.viewModel.actions
        onClosed: list.forceActiveFocus()
    }
}
