// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The columns of a `ResultRow` beside its box: name, place, size.
Item {
    id: content

    required property string name
    required property string folder
    required property string size
    required property bool shielded

    /// Whether the pointer rests on the shield.
    readonly property bool shieldHovered: shieldHover.hovered
    /// How much of the width belongs to the name and its shield.
    readonly property real nameColumn: Math.round(content.width * (Metrics.nameColumn))

    Label {
        id: nameText

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, content.nameColumn - (content.shielded ? shield.width + Theme.spacing : 0))
        elide: Text.ElideMiddle
        text: ShownText.isolated(content.name)
        Accessible.ignored: true
    }
    Symbol {
        id: shield

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: nameText.right
        anchors.leftMargin: Theme.spacing
        visible: content.shielded
        name: "exclamationmark.shield"
        size: Metrics.symbolSmall
        color: Theme.warningLabel

        HoverHandler {
            id: shieldHover
        }
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: content.nameColumn + Theme.spacingLarge
        anchors.right: sizeText.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Callout
        color: Theme.tertiaryLabel
        elide: Text.ElideMiddle
        text: ShownText.isolated(content.folder)
        Accessible.ignored: true
    }
    Label {
        id: sizeText

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.sizeColumn
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideNone
        color: Theme.secondaryLabel
        text: content.size
        Accessible.ignored: true
    }
}
