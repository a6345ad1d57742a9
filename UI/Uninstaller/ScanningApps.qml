// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// That applications are being looked for, or one is being removed.
FocusScope {
    id: view

    required property UninstallerViewModel viewModel

    Keys.onEscapePressed: view.viewModel.cancel()

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.spacingHuge
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.textWidth)
        spacing: Theme.spacing

        BusySpinner {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.accent(view.viewModel.module.accent)
        }
        Item {
            width: 1
            height: Theme.spacing
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title2
            text: qsTr("Scanning applications…")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            height: Theme.lineHeight
            horizontalAlignment: Text.AlignHCenter
            style: Label.Caption
            color: Theme.tertiaryLabel
            elide: Text.ElideMiddle
            text: ShownText.isolated(view.viewModel.currentPath)
        }
        Item {
            width: 1
            height: Theme.spacing
        }
        // Its place stays while something is removed, which cannot be cancelled.
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            opacity: view.viewModel.cancellable ? 1 : 0
            enabled: view.viewModel.cancellable
            text: qsTr("Cancel")
            onClicked: view.viewModel.cancel()
        }
    }
}
