// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A heading of the sidebar and the modules under it.
Column {
    id: section

    required property string title
    required property ContentViewModel viewModel
    /// A list of ModuleViewModel.
    required property var modules

    topPadding: Theme.spacingLarge
    spacing: Theme.spacingHair

    SectionHeader {
        width: section.width
        leftPadding: Theme.spacing
        rightPadding: Theme.spacing
        bottomPadding: Theme.spacingTiny
        text: section.title
    }
    Repeater {
        model: section.modules

        SidebarRow {
            required property ModuleViewModel modelData

            width: section.width
            symbol: modelData.symbol
            accent: Theme.accent(modelData.accent)
            text: modelData.title
            selected: section.viewModel.selectedModule === modelData
            onClicked: section.viewModel.selectedModule = modelData
        }
    }
}
