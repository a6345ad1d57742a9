// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Presents a module that this version knows but cannot run yet.
Item {
    id: overview

    required property ModuleViewModel module

    Accessible.role: Accessible.Pane
    Accessible.name: overview.module ? overview.module.title : ""

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -Theme.spacingHuge
        width: Math.min(parent.width - 2 * Theme.pageMargin, 480)
        spacing: Theme.spacing
        visible: overview.module !== null

        ModuleHeroIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: overview.module ? overview.module.symbol : ""
            accent: overview.module ? Theme.accent(overview.module.accent) : Theme.blue
        }
        Item {
            width: 1
            height: Theme.spacingMedium
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.LargeTitle
            text: overview.module ? overview.module.title : ""
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Title3
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: overview.module ? overview.module.subtitle : ""
        }
        Item {
            width: 1
            height: Theme.spacing
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Label.Callout
            color: Theme.tertiaryLabel
            wrapMode: Text.Wrap
            text: qsTr("This module is not part of this version yet.")
        }
    }
}
