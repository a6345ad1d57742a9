// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The findings, category by category, for the user to choose from.
FocusScope {
    id: view

    required property ScanViewModel viewModel

    ResultsHeader {
        id: header

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.pageMargin
        anchors.topMargin: Theme.spacingHuge
        viewModel: view.viewModel
    }
    Card {
        anchors.top: header.bottom
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        anchors.topMargin: Theme.spacingLarge
        anchors.bottomMargin: Theme.spacingLarge

        ResultsList {
            anchors.fill: parent
            anchors.margins: 1
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
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        anchors.bottomMargin: Theme.spacingHuge
        height: Theme.largeControlHeight

        Button {
            anchors.centerIn: parent
            width: Math.max(200, implicitWidth)
            large: true
            kind: Button.Prominent
            symbol: "sparkles"
            text: qsTr("Clean")
            enabled: view.viewModel.hasSelection
            onClicked: view.viewModel.requestClean()
        }
    }
}
