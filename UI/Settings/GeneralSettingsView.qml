// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The preferences, and whether the system lets the application see everything.
Item {
    id: view

    required property SettingsViewModel viewModel
    /// Whether the tab is on screen; the access is probed whenever it comes there.
    required property bool shown

    onShownChanged: view.refresh()
    Component.onCompleted: view.refresh()

    function refresh(): void {
        if (view.shown)
            view.viewModel.access.refresh();
    }

    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.spacingHuge
        spacing: Theme.spacing

        FormGroup {
            width: parent.width

            Switch {
                width: parent.width
                text: qsTr("Move files to Trash instead of deleting")
                checked: view.viewModel.movesToTrash
                onToggled: view.viewModel.movesToTrash = checked
            }
            Separator {
                width: parent.width
            }
            Switch {
                width: parent.width
                text: qsTr("Ask for confirmation before cleaning")
                checked: view.viewModel.asksBeforeCleaning
                onToggled: view.viewModel.asksBeforeCleaning = checked
            }
        }
        SectionHeader {
            width: parent.width
            topPadding: Theme.spacing
            leftPadding: Theme.spacingTiny
            rightPadding: Theme.spacingTiny
            text: qsTr("Permissions")
        }
        FormGroup {
            width: parent.width

            AccessRow {
                width: parent.width
                viewModel: view.viewModel.access
            }
        }
    }
}
