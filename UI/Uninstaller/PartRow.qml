// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// One thing that goes when the application goes: its name over its path, and its size.
Item {
    id: row

    required property string name
    required property string path
    required property string size
    /// Whether a line divides it from the row above.
    property bool separated: false

    implicitHeight: Metrics.tallRowHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: row.name
    Accessible.description: row.size + ", " + row.path

    Separator {
        x: Theme.spacingLarge
        width: parent.width - 2 * Theme.spacingLarge
        visible: row.separated
    }
    Column {
        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingLarge
        anchors.right: sizeText.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingHair

        Label {
            width: parent.width
            elide: Text.ElideMiddle
            text: ShownText.isolated(row.name)
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            style: Label.Caption
            color: Theme.tertiaryLabel
            // The end tells one place from another.
            elide: Text.ElideLeft
            text: ShownText.isolated(row.path)
            Accessible.ignored: true
        }
    }
    Label {
        id: sizeText

        anchors.right: parent.right
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideNone
        color: Theme.secondaryLabel
        text: row.size
        Accessible.ignored: true
    }
    ToolTipArea {
        text: row.path
    }
}
