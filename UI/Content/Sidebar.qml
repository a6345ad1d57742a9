// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The list of modules in their sections, with the way back to the dashboard above them.
Rectangle {
    id: sidebar

    required property ContentViewModel viewModel

    signal settingsRequested
    /// The keyboard is to go on to the screen.
    signal screenRequested

    /// Brings the keyboard to the row of what is shown.
    function lead(): void {
        let row = first;
        while (row !== null && !row.selected)
            row = row.nextItemInFocusChain(true) as SidebarRow;
        (row === null ? first : row).forceActiveFocus(Qt.TabFocusReason);
    }

    /// Whether an item lies in the sidebar.
    function holds(item: Item): bool {
        let above = item;
        while (above !== null && above !== sidebar)
            above = above.parent;
        return above === sidebar;
    }

    color: Theme.sidebar

    Separator {
        anchors.right: parent.right
        height: parent.height
    }
    SidebarHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.spacingMedium
        anchors.top: parent.top
        anchors.topMargin: Theme.spacingLarge
        onSettingsRequested: sidebar.settingsRequested()
    }
    Flickable {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.spacingMedium
        anchors.bottom: parent.bottom
        contentHeight: list.implicitHeight + 2 * Theme.spacing
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: list

            x: Theme.spacingMedium
            y: Theme.spacingTiny
            width: parent.width - 2 * Theme.spacingMedium
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Modules")

            Keys.onDownPressed: list.step(true)
            Keys.onUpPressed: list.step(false)
            Keys.onRightPressed: event => event.accepted = list.leave(true)
            Keys.onLeftPressed: event => event.accepted = list.leave(false)

            /// Moves the keyboard to the next or the previous row.
            function step(forward: bool): void {
                const next = list.Window.activeFocusItem.nextItemInFocusChain(forward) as SidebarRow;
                if (next)
                    next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
            }

            /// Goes on to the screen if it lies to this side; whether it does.
            function leave(toTheRight: bool): bool {
                if (toTheRight === list.LayoutMirroring.enabled)
                    return false;
                sidebar.screenRequested();
                return true;
            }

            SidebarRow {
                id: first

                width: parent.width
                symbol: "square.grid.2x2"
                text: qsTr("Dashboard")
                selected: sidebar.viewModel.selectedModule === null
                onClicked: sidebar.viewModel.selectedModule = null
            }
            SidebarSection {
                width: parent.width
                title: qsTr("Cleanup")
                viewModel: sidebar.viewModel
                modules: sidebar.viewModel.cleanup
            }
            SidebarSection {
                width: parent.width
                title: qsTr("Speed")
                viewModel: sidebar.viewModel
                modules: sidebar.viewModel.speed
            }
            SidebarSection {
                width: parent.width
                title: qsTr("Devices")
                viewModel: sidebar.viewModel
                modules: sidebar.viewModel.devices
            }
        }
    }
}
