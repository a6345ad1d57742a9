// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The home screen: a greeting, how full the startup disk is, and a card for each module.
Flickable {
    id: screen

    required property DashboardViewModel viewModel

    readonly property real pageWidth: Math.min(screen.width - 2 * Theme.pageMargin, 1120)
    readonly property Item focusedItem: screen.Window.activeFocusItem

    contentWidth: width
    contentHeight: page.implicitHeight + 2 * Theme.spacingHuge
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Dashboard")
    T.ScrollBar.vertical: ScrollBar { }

    onFocusedItemChanged: screen.reveal(screen.focusedItem as T.Control)

    /// Scrolls no further than to see all of a control that the keyboard led to; under a press nothing may move.
    function reveal(control: T.Control): void {
        if (control === null || !control.visualFocus || !screen.holds(control))
            return;
        const top = control.mapToItem(screen.contentItem, 0, 0).y - Theme.spacingHuge;
        const bottom = top + control.height + 2 * Theme.spacingHuge;
        const seen = Math.min(Math.max(screen.contentY, bottom - screen.height), top);
        screen.contentY = Math.max(0, Math.min(seen, screen.contentHeight - screen.height));
    }
    function holds(item: Item): bool {
        let above = item.parent;
        while (above !== null && above !== screen)
            above = above.parent;
        return above === screen;
    }

    Column {
        id: page

        x: (screen.width - width) / 2
        y: Theme.spacingHuge
        width: screen.pageWidth
        spacing: Theme.spacingHuge - 4

        DashboardHeader {
            width: parent.width
        }
        StorageOverviewCard {
            width: parent.width
            viewModel: screen.viewModel
            shown: screen.visible
        }
        ModuleGrid {
            width: parent.width
            viewModel: screen.viewModel
        }
    }
}
