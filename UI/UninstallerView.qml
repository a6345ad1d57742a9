// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The screen that lists the applications with what they left behind, and takes one away with all of it.
FocusScope {
    id: screen

    required property UninstallerViewModel viewModel
    /// Whether the confirmation is shown.
    property bool confirmUninstall: false

    /// Brings on the view of the phase.
    function showPhase(): void {
        stage.show(screen.component(), screen.activeFocus || confirmation.visible);
    }
    function component(): Component {
        switch (screen.viewModel.phase) {
        case UninstallerViewModel.Idle:
            return idle;
        case UninstallerViewModel.Scanning:
            return scanning;
        case UninstallerViewModel.Loaded:
            return loaded;
        }
    }

    Accessible.role: Accessible.Pane
    Accessible.name: screen.viewModel.module.title
    Component.onCompleted: screen.showPhase()

    Binding {
        target: screen.viewModel
        property: "seen"
        value: screen.visible && screen.Window.visibility !== Window.Hidden
            && screen.Window.visibility !== Window.Minimized
    }
    Connections {
        target: screen.viewModel

        function onPhaseChanged() {
            screen.showPhase();
        }
        function onRunningChanged() {
            if (screen.viewModel.selectedRunning)
                screen.confirmUninstall = false;
        }
    }

    Stage {
        id: stage

        anchors.fill: parent
        focus: true
    }
    Component {
        id: idle

        ModuleStart {
            anchors.fill: parent
            focus: true
            module: screen.viewModel.module
            action: qsTr("Scan Applications")
            onStarted: screen.viewModel.scan()
        }
    }
    Component {
        id: scanning

        ScanningApps {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
        }
    }
    Component {
        id: loaded

        LoadedApps {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
            onUninstallRequested: screen.confirmUninstall = true
        }
    }

    ConfirmationDialog {
        id: confirmation

        visible: screen.confirmUninstall
        title: screen.viewModel.selected.question
        message: screen.viewModel.selected.consequence
        confirmText: screen.viewModel.selected.consent
        destructive: true
        symbol: "trash"
        accent: Theme.red
        onAccepted: screen.viewModel.uninstallSelected()
        onClosed: {
            screen.confirmUninstall = false;
            // What had the keyboard before may be gone.
            if (!screen.activeFocus)
                stage.forceActiveFocus(Qt.TabFocusReason);
        }
    }
}
