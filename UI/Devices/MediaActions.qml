// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// How many files are ticked, what can be done with them, and what came of it.
Column {
    id: actions

    required property IOSMediaViewModel viewModel
    /// Whether there is anything to be ticked.
    required property bool offered

    /// What is said under the buttons.
    readonly property Item statusLine: line

    signal deletionRequested

    visible: actions.offered || actions.viewModel.statusMessage !== ""
    spacing: Theme.spacing

    RowLayout {
        width: parent.width
        visible: actions.offered
        spacing: Theme.spacingMedium

        Label {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            maximumLineCount: 2
            color: Theme.secondaryLabel
            text: actions.viewModel.selectionText
        }
        Button {
            enabled: actions.viewModel.ready
            symbol: "square.and.arrow.down"
            text: qsTr("Export Selected to Downloads")
            onClicked: actions.viewModel.exportSelected()
        }
        Button {
            enabled: actions.viewModel.ready
            kind: Button.Destructive
            symbol: "trash"
            text: qsTr("Delete from Device")
            onClicked: actions.deletionRequested()
        }
    }
    RowLayout {
        id: line

        width: parent.width
        visible: actions.viewModel.statusMessage !== ""
        spacing: Theme.spacing

        BusySpinner {
            Layout.preferredWidth: Metrics.symbolSmall
            Layout.preferredHeight: Metrics.symbolSmall
            color: Theme.secondaryLabel
            running: actions.viewModel.working
        }
        Label {
            Layout.fillWidth: true
            style: Label.Callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            maximumLineCount: 3
            text: actions.viewModel.statusMessage
        }
    }
}
