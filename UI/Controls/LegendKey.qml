// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What a colour of a bar stands for: a dot of it, a name, and how much it is.
Row {
    id: key

    required property color shade
    required property string title
    required property string size
    /// How wide the name may become before its end is cut off. Cut in the middle, a size in it would lose its first
    /// figures.
    property real widestTitle: Metrics.legendName
    /// Whether the size is to be seen too.
    property bool sizeShown: true
    /// Without and with the size, whichever is seen.
    readonly property real shortWidth: dot.width + key.spacing + name.width
    readonly property real wholeWidth: key.shortWidth + key.spacing + amount.implicitWidth

    spacing: Theme.spacing
    Accessible.role: Accessible.StaticText
    Accessible.name: key.title
    Accessible.description: key.size

    LegendDot {
        id: dot

        anchors.verticalCenter: parent.verticalCenter
        shade: key.shade
    }
    Label {
        id: name

        width: Math.min(implicitWidth, key.widestTitle)
        style: Label.Callout
        elide: Text.ElideRight
        text: ShownText.isolated(key.title)
        Accessible.ignored: true
    }
    Label {
        id: amount

        visible: key.sizeShown
        style: Label.Callout
        color: Theme.secondaryLabel
        elide: Text.ElideNone
        text: key.size
        Accessible.ignored: true
    }
}
