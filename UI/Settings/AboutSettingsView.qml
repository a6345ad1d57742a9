// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What this application is, and which version of it.
Item {
    id: view

    required property SettingsViewModel viewModel

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.pageMargin
        spacing: Theme.spacing

        IconTile {
            anchors.horizontalCenter: parent.horizontalCenter
            size: Metrics.aboutTile
            radius: Theme.tileRadius
            symbol: "sparkles"
            gradient: Theme.heroGradient
        }
        Label {
            width: parent.width
            topPadding: Theme.spacing
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title
            text: qsTr("Korvane")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Caption
            color: Theme.secondaryLabel
            text: view.viewModel.versionText
        }
        Label {
            width: parent.width
            topPadding: Theme.spacingTiny
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            style: Label.Callout
            text: qsTr("Keep your Mac and iOS devices clean and fast.")
        }
    }
}
