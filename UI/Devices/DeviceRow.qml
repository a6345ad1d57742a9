// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// One device: its name, its system, and how full it is.
Item {
    id: row

    required property int index
    required property string name
    required property string version
    required property double usedFraction
    required property string storage
    required property string used
    required property string free
    required property color accent

    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.version + (row.storage === "" ? "" : ", " + row.storage)
    Accessible.focused: row.activeFocus

    Separator {
        x: Theme.spacingLarge
        width: row.width - 2 * x
        visible: row.index > 0
    }
    // No pointer brings the keyboard here.
    Rectangle {
        anchors.fill: parent
        anchors.margins: Theme.spacingTiny
        radius: Theme.radius
        color: "transparent"
        border.width: row.activeFocus ? Theme.rowRing : 0
        border.color: Theme.focusRing
    }
    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingHuge
        anchors.verticalCenter: parent.verticalCenter
        name: "iphone.gen3"
        size: Metrics.symbolHuge
        color: row.accent
    }
    Column {
        anchors.left: sign.right
        anchors.leftMargin: Theme.spacingLarge
        anchors.right: parent.right
        anchors.rightMargin: Theme.spacingHuge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacing

        Column {
            width: parent.width
            spacing: Theme.spacingHair

            Label {
                width: parent.width
                style: Label.Headline
                elide: Text.ElideMiddle
                text: ShownText.isolated(row.name)
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                style: Label.Callout
                color: Theme.secondaryLabel
                text: ShownText.isolated(row.version)
                Accessible.ignored: true
            }
        }
        ProgressBar {
            width: parent.width
            visible: row.storage !== ""
            value: row.usedFraction
            tint: Theme.blue
            Accessible.name: qsTr("Used space of %1").arg(row.name)
            Accessible.description: row.storage
        }
        StorageCaption {
            width: parent.width
            visible: row.storage !== ""
            tint: Theme.blue
            text: row.storage
            used: row.used
            free: row.free
            silent: true
        }
    }
}
