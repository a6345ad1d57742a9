// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What an `AgentRow` shows.
Item {
    id: content

    required property string label
    required property string detail
    required property string domain
    required property bool removable

    signal removalRequested

    Column {
        anchors.left: parent.left
        anchors.right: capsule.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingHair

        Label {
            width: parent.width
            style: Label.Callout
            elide: Text.ElideMiddle
            text: ShownText.isolated(content.label)
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            style: Label.Caption
            color: Theme.secondaryLabel
            elide: Text.ElideMiddle
            text: ShownText.isolated(content.detail)
            Accessible.ignored: true
        }
    }
    Rectangle {
        id: capsule

        // Capsules stand in one column, whether there is a button after them or not.
        anchors.right: parent.right
        anchors.rightMargin: trash.width + Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        width: domainText.implicitWidth + 2 * Theme.spacing
        height: Metrics.capsuleHeight
        radius: height / 2
        color: Theme.capsuleFill

        Label {
            id: domainText

            anchors.centerIn: parent
            style: Label.Caption
            elide: Text.ElideNone
            text: content.domain
            Accessible.ignored: true
        }
    }
    RemoveButton {
        id: trash

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: content.removable
        Accessible.name: qsTr("Remove %1").arg(content.label)
        onClicked: content.removalRequested()
    }
}
