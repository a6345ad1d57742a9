// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What the cleaning has brought, and what it could not do.
FocusScope {
    id: view

    required property ScanViewModel viewModel
    property bool unfolded: false
    /// Whether a change of layout is one that the user asked for, and is shown as a movement.
    property bool moves: false

    readonly property bool hasFailures: view.viewModel.result.failuresLine !== ""

    Column {
        id: summary

        y: view.unfolded ? Theme.spacingHuge
                         : Math.max(Theme.spacingHuge, (parent.height - height) / 2 - Theme.spacingHuge)
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.textWidth)
        spacing: Theme.spacing

        Behavior on y {
            enabled: view.moves

            NumberAnimation {
                duration: Theme.durationLong
                easing.type: Easing.OutCubic
            }
        }

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "checkmark.circle.fill"
            size: view.unfolded ? Metrics.outcomeSymbolSmall : Metrics.outcomeSymbol
            color: Theme.green
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.LargeTitle
            text: view.viewModel.result.heading
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title3
            color: Theme.secondaryLabel
            text: view.viewModel.result.countLine
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: view.hasFailures
            style: Label.Title3
            color: Theme.warningLabel
            text: view.viewModel.result.failuresLine
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Theme.spacingMedium

            Button {
                visible: view.hasFailures
                large: true
                symbol: view.unfolded ? "chevron.down" : "chevron.right"
                text: view.unfolded ? qsTr("Hide Details") : qsTr("Show Details")
                onClicked: {
                    view.moves = true;
                    view.unfolded = !view.unfolded;
                }
            }
            Button {
                focus: true
                large: true
                kind: view.hasFailures ? Button.Plain : Button.Prominent
                symbol: "arrow.clockwise"
                text: qsTr("Scan Again")
                onClicked: view.viewModel.startScan()
            }
        }
    }
    Card {
        anchors.top: summary.bottom
        anchors.topMargin: Theme.spacingHuge
        // No taller than what it lists.
        height: Math.min(parent.height - y - Theme.spacingHuge, failures.fullHeight + 2 * Theme.hairline)
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.tableWidth)
        visible: view.unfolded

        FailuresList {
            id: failures

            anchors.fill: parent
            anchors.margins: Theme.hairline
            model: view.viewModel.failures
        }
    }
}
