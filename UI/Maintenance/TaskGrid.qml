// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// A card for each maintenance task, in as many columns as fit.
GridLayout {
    id: grid

    required property MaintenanceViewModel viewModel

    /// The narrowest card that still shows every text.
    readonly property int minimumCardWidth: Metrics.taskCardWidth

    columns: Math.max(1, Math.min(cards.count,
        Math.floor((grid.width + grid.columnSpacing) / (grid.minimumCardWidth + grid.columnSpacing))))
    columnSpacing: Theme.spacingLarge
    rowSpacing: Theme.spacingLarge
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Maintenance tasks")

    Repeater {
        id: cards

        model: grid.viewModel.taskRows

        TaskCard {
            id: card

            Layout.fillWidth: true
            Layout.fillHeight: true
            // The same for all, so that all become equally wide.
            Layout.preferredWidth: grid.minimumCardWidth
            onRunRequested: grid.viewModel.runTask(card.taskId)
        }
    }
}
