// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The camera roll of a device: its folders and files, and what is done with those that are ticked.
SteadyScope {
    id: section

    required property IOSMediaViewModel viewModel
    required property bool shown
    /// How high its list may become.
    required property real tallest

    readonly property Item statusLine: actions.statusLine
    /// Whether the user is asked about a deletion, or has just been.
    readonly property bool asking: confirmation.visible
    readonly property int phase: section.viewModel.phase
    readonly property bool browsable: section.phase === IOSMediaViewModel.Loaded && !section.viewModel.empty
    /// Whether the keyboard goes to the list once there is one again.
    property bool returning: false

    /// Brings the keyboard to the list; while there is none, to the button that reads it again.
    function leadBack(): void {
        section.returning = !section.browsable;
        if (section.browsable)
            browser.takeKeyboard();
        else
            heading.refreshButton.forceActiveFocus(Qt.OtherFocusReason);
    }

    height: column.height
    Accessible.role: Accessible.Grouping
    Accessible.name: section.viewModel.title
    onShownChanged: {
        if (section.shown)
            section.viewModel.load();
        else
            section.viewModel.hide();
    }
    onBrowsableChanged: {
        // The dialog has the keyboard then.
        if (confirmation.visible)
            return;
        if (!section.browsable && section.activeFocus && !heading.refreshButton.activeFocus)
            section.leadBack();
        else if (section.browsable && section.returning && heading.refreshButton.activeFocus)
            section.leadBack();
        else
            section.returning = false;
    }

    Column {
        id: column

        width: parent.width
        spacing: Theme.spacingMedium

        DeviceHeading {
            id: heading

            width: parent.width
            title: section.viewModel.title
            subtitle: qsTr("Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.")
            refreshable: true
            onRefreshRequested: section.viewModel.load()
        }
        Card {
            width: parent.width
            // While it is read again it takes the place that it had, so that nothing moves.
            height: section.browsable ? browser.height
                : section.phase !== IOSMediaViewModel.Loading || browser.count === 0 ? Metrics.tallRowHeight
                : browser.height + Theme.spacing + Metrics.controlHeight
            radius: Theme.radiusLarge

            BusyLine {
                x: Theme.spacingHuge
                width: parent.width - 2 * x
                visible: section.phase === IOSMediaViewModel.Loading
                text: qsTr("Reading camera roll…")
                detail: section.viewModel.progressText
            }
            MediaNotice {
                x: Theme.spacingHuge
                width: parent.width - 2 * x
                height: parent.height
                visible: section.phase !== IOSMediaViewModel.Loading && !section.browsable
                failed: section.phase === IOSMediaViewModel.Failed
                failure: section.viewModel.failure
            }
            MediaBrowser {
                id: browser

                width: parent.width
                visible: section.browsable
                viewModel: section.viewModel
                tallest: section.tallest
                below: column.spacing + actions.height
            }
        }
        MediaActions {
            id: actions

            width: parent.width
            offered: section.browsable
            viewModel: section.viewModel
            onDeletionRequested: {
                confirmation.title = section.viewModel.deletionQuestion();
                confirmation.open();
            }
        }
    }
    // What it asks about must be what is deleted then.
    Connections {
        target: section.viewModel

        function onSelectionChanged(): void {
            confirmation.close();
        }
    }
    ConfirmationDialog {
        id: confirmation

        message: qsTr("This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.")
        confirmText: qsTr("Delete Permanently")
        destructive: true
        symbol: "trash"
        accent: Theme.red
        onAccepted: {
            section.returning = true;
            section.viewModel.deleteSelected();
        }
        onClosed: {
            if (section.returning || !section.browsable)
                section.leadBack();
        }
    }
}
