// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What an `AppRow` shows.
Item {
    id: content

    required property string name
    required property string leftoversText
    required property string size
    required property string iconSource
    required property bool selected

    AppIcon {
        id: icon

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        size: Metrics.rowIcon
        source: content.iconSource
    }
    Label {
        id: sizeText

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideNone
        style: Label.Callout
        color: Theme.secondaryLabel
        text: content.size
        Accessible.ignored: true
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.right: sizeText.left
        anchors.rightMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingHair

        Label {
            width: parent.width
            font.weight: content.selected ? Font.Bold : Font.Medium
            elide: Text.ElideMiddle
            text: ShownText.isolated(content.name)
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            style: Label.Caption
            color: Theme.tertiaryLabel
            text: content.leftoversText
            Accessible.ignored: true
        }
    }
}
