// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What a `BackupRow` shows.
Item {
    id: content

    required property string name
    required property string detail
    required property string size

    signal removalRequested

    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: "externaldrive.badge.timemachine"
        size: Metrics.symbolLarge
        color: Theme.blue
    }
    Column {
        anchors.left: sign.right
        anchors.leftMargin: Theme.spacingLarge
        anchors.right: sizeText.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingHair

        Label {
            width: parent.width
            elide: Text.ElideMiddle
            text: ShownText.isolated(content.name)
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: content.detail !== ""
            style: Label.Caption
            color: Theme.secondaryLabel
            text: ShownText.isolated(content.detail)
            Accessible.ignored: true
        }
    }
    Label {
        id: sizeText

        anchors.right: trash.left
        anchors.rightMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideNone
        color: Theme.secondaryLabel
        text: content.size
        Accessible.ignored: true
    }
    RemoveButton {
        id: trash

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        Accessible.name: qsTr("Delete backup of %1").arg(content.name)
        onClicked: content.removalRequested()
    }
}
