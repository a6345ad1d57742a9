// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The findings, category by category, for the user to choose from.
FocusScope {
    id: view

    required property ScanViewModel viewModel

    readonly property real margin: Math.max(Theme.pageMargin, Math.round((view.width - Metrics.tableWidth) / 2))

    ResultsHeader {
        id: header

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: view.margin
        anchors.rightMargin: view.margin
        anchors.topMargin: Theme.spacingHuge
        viewModel: view.viewModel
    }
    ResultsShares {
        id: shares

        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: view.margin
        anchors.rightMargin: view.margin
        anchors.topMargin: Theme.spacingLarge
        visible: view.viewModel.rows.shares.telling
        shares: view.viewModel.rows.shares
        onChosen: (row, byKeyboard) => list.lead(row, byKeyboard)
    }
    Card {
        anchors.top: shares.visible ? shares.bottom : header.bottom
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: view.margin
        anchors.rightMargin: view.margin
        anchors.topMargin: Theme.spacingLarge
        anchors.bottomMargin: Theme.spacingLarge

        ResultsList {
            id: list

            anchors.fill: parent
            anchors.margins: Theme.hairline
            focus: true
            viewModel: view.viewModel
            // With a parent, because the list does not keep its heading's component from being collected as garbage.
            heading: Qt.createComponent(Qt.resolvedUrl("CategoryHeading.qml"), Component.PreferSynchronous, view)
        }
    }
    Item {
        id: footer

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: view.margin
        anchors.rightMargin: view.margin
        anchors.bottomMargin: Theme.spacingHuge
        height: Metrics.largeControlHeight

        Button {
            anchors.centerIn: parent
            width: Math.max(Metrics.actionWidth, implicitWidth)
            large: true
            kind: Button.Prominent
            symbol: "sparkles"
            text: qsTr("Clean")
            enabled: view.viewModel.hasSelection
            onClicked: view.viewModel.requestClean()
        }
    }
}
