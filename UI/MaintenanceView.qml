// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The screen that has maintenance tasks carried out, and lists what starts by itself.
FocusScope {
    id: screen

    required property MaintenanceViewModel viewModel

    /// Also false while the window is closed and the application goes on without it.
    readonly property bool onScreen: screen.Window.visibility !== Window.Hidden

    Accessible.role: Accessible.Pane
    Accessible.name: screen.viewModel.module.title
    onOnScreenChanged: {
        if (screen.onScreen)
            screen.viewModel.appear();
    }

    AgentsPage {
        id: page

        anchors.fill: parent
        focus: true
        viewModel: screen.viewModel
    }

    ConfirmationDialog {
        visible: screen.viewModel.asking
        title: screen.viewModel.question
        message: qsTr("The launch agent file will be moved to Trash. It stops running after the next login.")
        confirmText: qsTr("Move to Trash")
        destructive: true
        symbol: "trash"
        accent: Theme.red
        onAccepted: screen.viewModel.removeAsked()
        onClosed: {
            screen.viewModel.stopAsking();
            // The row that had the keyboard may be gone by now.
            page.moveTo(page.row);
        }
    }
}
