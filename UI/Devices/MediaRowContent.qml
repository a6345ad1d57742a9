// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What a `MediaRow` shows beside its box: the kind, the name, and of a folder how many files it has.
Item {
    id: content

    required property string name
    required property string symbol
    required property string count
    required property bool isFolder

    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: content.symbol
        size: Metrics.symbolMedium
        color: content.isFolder ? Theme.blue : Theme.secondaryLabel
    }
    Label {
        anchors.left: sign.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.right: countText.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        style: content.isFolder ? Label.Headline : Label.Body
        elide: Text.ElideMiddle
        text: ShownText.isolated(content.name)
        Accessible.ignored: true
    }
    Label {
        id: countText

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Callout
        elide: Text.ElideNone
        color: Theme.secondaryLabel
        text: content.count
        Accessible.ignored: true
    }
}
