// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What the module is for, and the button that starts it.
FocusScope {
    id: view

    required property ModuleViewModel module
    /// What the button says.
    required property string action

    signal started

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.spacingHuge
        width: Math.min(parent.width - 2 * Theme.pageMargin, Metrics.textWidth)
        spacing: Theme.spacing

        ModuleHeroIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: view.module.symbol
            accent: Theme.accent(view.module.accent)
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.LargeTitle
            text: view.module.title
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title3
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: view.module.subtitle
        }
        Item {
            width: 1
            height: Theme.spacingLarge
        }
        Button {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            large: true
            kind: Button.Prominent
            symbol: "magnifyingglass"
            text: view.action
            onClicked: view.started()
        }
    }
}
