// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What stands above the background items: the title of the page, the tasks, and what the list is.
SteadyScope {
    id: header

    required property MaintenanceViewModel viewModel
    /// Left and right of what it shows.
    required property real margin

    implicitHeight: column.implicitHeight + Theme.spacingHuge + Theme.spacingMedium

    Column {
        id: column

        x: header.margin
        y: Theme.spacingHuge
        width: header.width - 2 * header.margin
        spacing: Theme.spacingTiny

        Label {
            width: parent.width
            style: Label.LargeTitle
            text: header.viewModel.module.title
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            style: Label.Title3
            color: Theme.secondaryLabel
            text: header.viewModel.module.subtitle
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        TaskGrid {
            id: tasks

            width: parent.width
            viewModel: header.viewModel
        }
        Item {
            width: 1
            height: Theme.spacingLarge
        }
        Label {
            width: parent.width
            style: Label.Title3
            font.weight: Font.DemiBold
            text: header.viewModel.agentsTitle
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            style: Label.Callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: qsTr("Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.")
        }
    }
}
