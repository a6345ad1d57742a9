// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The screen of the devices on the cable and of their backups on this computer.
FocusScope {
    id: screen

    required property IOSDeviceViewModel viewModel

    /// Also false while the window is closed and the application goes on without it.
    readonly property bool onScreen: screen.Window.visibility !== Window.Hidden

    Accessible.role: Accessible.Pane
    Accessible.name: screen.viewModel.module.title
    onOnScreenChanged: {
        if (screen.onScreen)
            screen.viewModel.load();
    }

    DevicesPage {
        id: page

        anchors.fill: parent
        viewModel: screen.viewModel
        shown: screen.onScreen
    }

    ConfirmationDialog {
        visible: screen.viewModel.asking
        title: screen.viewModel.question
        message: qsTr("You won't be able to restore this device from this backup afterwards.")
        confirmText: qsTr("Move to Trash")
        destructive: true
        symbol: "trash"
        accent: Theme.red
        onAccepted: screen.viewModel.deleteAsked()
        onClosed: {
            screen.viewModel.stopAsking();
            page.returnToBackups();
        }
    }
}
