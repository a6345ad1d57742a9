// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The screen of a module that scans, lets the user choose, and cleans.
FocusScope {
    id: screen

    required property ScanViewModel viewModel

    Accessible.role: Accessible.Pane
    Accessible.name: screen.viewModel.module.title

    /// Brings on the view of the phase.
    function showPhase(): void {
        stage.show(screen.component(), screen.activeFocus || confirmation.visible);
    }
    function component(): Component {
        switch (screen.viewModel.phase) {
        case ScanViewModel.Idle:
            return idle;
        case ScanViewModel.Scanning:
            return scanning;
        case ScanViewModel.Cleaning:
            return cleaning;
        case ScanViewModel.Results:
            return screen.viewModel.hasItems ? results : allClean;
        case ScanViewModel.Cleaned:
            return cleaned;
        }
    }

    Component.onCompleted: {
        screen.showPhase();
        screen.viewModel.appear();
    }

    Connections {
        target: screen.viewModel

        function onPhaseChanged() {
            screen.showPhase();
        }
        function onConfirmationRequested() {
            confirmation.open();
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
            action: qsTr("Start Scan")
            onStarted: screen.viewModel.startScan()
        }
    }
    Component {
        id: scanning

        ScanningView {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
        }
    }
    Component {
        id: cleaning

        CleaningView {
            anchors.fill: parent
            focus: true
        }
    }
    Component {
        id: results

        ResultsView {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
        }
    }
    Component {
        id: allClean

        AllCleanView {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
        }
    }
    Component {
        id: cleaned

        CleanedView {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
        }
    }

    ConfirmationDialog {
        id: confirmation

        title: qsTr("Clean the selected items?")
        message: screen.viewModel.confirmation.text
        confirmText: screen.viewModel.confirmation.consent
        destructive: screen.viewModel.confirmation.destructive
        symbol: confirmation.destructive ? "exclamationmark.triangle.fill" : "trash"
        accent: confirmation.destructive ? Theme.red : Theme.blue
        onAccepted: screen.viewModel.cleanSelected()
        onClosed: {
            // What had the keyboard before may be gone.
            if (!screen.activeFocus)
                stage.forceActiveFocus(Qt.TabFocusReason);
        }
    }
}
