// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Korvane.UI

/// The home screen: a greeting, how full the startup disk is, and a card for each module.
Flickable {
    id: screen

    required property DashboardViewModel viewModel

    readonly property real pageWidth: Math.min(screen.width - 2 * Theme.pageMargin, Metrics.pageWidth)

    contentWidth: width
    contentHeight: page.implicitHeight + 2 * Theme.spacingHuge
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Dashboard")
    T.ScrollBar.vertical: ScrollBar { }

    FocusReveal {
        page: screen
    }
    Column {
        id: page

        x: (screen.width - width) / 2
        y: Theme.spacingHuge
        width: screen.pageWidth
        spacing: Theme.spacingHuge

        DashboardHeader {
            width: parent.width
        }
        StorageOverviewCard {
            width: parent.width
            viewModel: screen.viewModel
            // What a closed window showed is old when it is opened again.
            shown: screen.visible && screen.Window.visibility !== Window.Hidden
        }
        ModuleGrid {
            width: parent.width
            viewModel: screen.viewModel
        }
    }
}
