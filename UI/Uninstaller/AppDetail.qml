// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What the selected application consists of, and the button that takes it away.
FocusScope {
    id: detail

    required property UninstallerViewModel viewModel

    signal uninstallRequested

    /// Brings the keyboard to the button.
    function lead(): void {
        if (detail.viewModel.hasSelection)
            footer.lead();
    }

    EmptyState {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.spacingHuge
        width: Math.min(parent.width - 2 * Theme.spacingHuge, Metrics.noteWidth)
        visible: !detail.viewModel.hasSelection
        symbol: "macwindow"
        title: qsTr("Select an application")
        description: qsTr("Pick an app to see its size and leftover files.")
    }
    AppDetailHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.spacingHuge
        anchors.top: parent.top
        visible: detail.viewModel.hasSelection
        viewModel: detail.viewModel
    }
    AppParts {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.spacing
        anchors.bottom: footer.top
        visible: detail.viewModel.hasSelection
        viewModel: detail.viewModel
    }
    AppDetailFooter {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: detail.viewModel.hasSelection
        viewModel: detail.viewModel
        onUninstallRequested: detail.uninstallRequested()
    }
}
