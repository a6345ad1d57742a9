// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The screen of a module that scans, lets the user choose, and cleans.
FocusScope {
    id: screen

    required property ScanViewModel viewModel

    Accessible.role: Accessible.Pane
    Accessible.name: screen.viewModel.module.title

    Component.onCompleted: {
        stage.show();
        screen.viewModel.appear();
    }

    Connections {
        target: screen.viewModel

        function onPhaseChanged() {
            stage.show();
        }
        function onConfirmationRequested() {
            confirmation.open();
        }
    }

    FocusScope {
        id: stage

        property Item current: null

        anchors.fill: parent
        focus: true

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

        /// Brings on the view of the phase, and the keyboard with it if this screen had it.
        function show(): void {
            const focused = stage.T.ApplicationWindow.activeFocusControl as T.Control;
            const byKeyboard = focused !== null && focused.visualFocus;
            const hadFocus = screen.activeFocus || confirmation.visible;
            const previous = stage.current;
            stage.current = stage.component().createObject(stage) as Item;
            if (hadFocus)
                stage.current.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.OtherFocusReason);
            if (previous !== null) {
                previous.visible = false;
                previous.destroy();
            }
        }
    }

    Component {
        id: idle

        ScanIdle {
            anchors.fill: parent
            focus: true
            viewModel: screen.viewModel
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
    }
}
