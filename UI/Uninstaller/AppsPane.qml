// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The search field over the list of applications.
FocusScope {
    id: pane

    required property UninstallerViewModel viewModel

    /// The keyboard is to go on to what is shown of the selected application.
    signal detailRequested

    TextField {
        id: search

        anchors.left: parent.left
        anchors.right: again.left
        anchors.top: parent.top
        anchors.margins: Theme.spacingMedium
        anchors.rightMargin: Theme.spacingTiny
        focus: true
        symbol: "magnifyingglass"
        placeholderText: qsTr("Search apps")
        text: pane.viewModel.searchText
        Accessible.role: Accessible.EditableText
        onTextEdited: pane.viewModel.searchText = search.text
        Keys.onEscapePressed: event => {
            event.accepted = search.length > 0;
            pane.viewModel.searchText = "";
        }
        Keys.onDownPressed: list.enter()
        Keys.onReturnPressed: list.enter()
        Keys.onEnterPressed: list.enter()
    }
    Button {
        id: again

        anchors.right: parent.right
        anchors.rightMargin: Theme.spacing
        anchors.verticalCenter: search.verticalCenter
        kind: Button.Borderless
        symbol: "arrow.clockwise"
        ink: Theme.secondaryLabel
        Accessible.name: qsTr("Scan Again")
        onClicked: pane.viewModel.scan()

        ToolTipArea {
            text: qsTr("Scan Again")
        }
    }
    AppsList {
        id: list

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: search.bottom
        anchors.topMargin: Theme.spacing
        anchors.bottom: parent.bottom
        viewModel: pane.viewModel
        onTyped: text => {
            search.forceActiveFocus(Qt.ShortcutFocusReason);
            pane.viewModel.searchText += text;
            search.cursorPosition = search.length;
        }
        onLeftUpwards: search.forceActiveFocus(Qt.BacktabFocusReason)
        onDetailRequested: pane.detailRequested()
    }
    EmptyState {
        anchors.centerIn: list
        anchors.verticalCenterOffset: -Theme.pageMargin
        width: list.width - 2 * Theme.spacingHuge
        visible: list.count === 0
        symbol: pane.viewModel.hasApps ? "magnifyingglass" : "macwindow"
        title: pane.viewModel.hasApps ? qsTr("No matching apps") : qsTr("No applications found")
        description: pane.viewModel.hasApps ? qsTr("Only names are searched.")
                                            : qsTr("There are none in the application folders.")
    }
}
