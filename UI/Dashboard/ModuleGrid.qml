// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A card for each module, in as many columns as fit and leave no gap in the last row.
Grid {
    id: grid

    required property DashboardViewModel viewModel

    /// The narrowest card that still shows every text.
    readonly property int minimumCardWidth: Metrics.moduleCardWidth
    readonly property int fitting: Math.floor((grid.width + grid.spacing) / (grid.minimumCardWidth + grid.spacing))

    spacing: Theme.spacingLarge
    columns: grid.fitting >= 6 ? 6 : grid.fitting >= 3 ? 3 : Math.max(1, grid.fitting)
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Modules")

    Repeater {
        model: grid.viewModel.modules

        ModuleCard {
            required property ModuleViewModel modelData

            width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
            module: modelData
            onClicked: grid.viewModel.open(modelData)
        }
    }
}
