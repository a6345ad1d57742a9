// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The line under the bar of a storage: how full it is in words, and what the two colours of the bar stand for. Where
/// there is little room the legend leaves out the sizes, and where there is none it goes.
Item {
    id: caption

    required property color tint
    required property string text
    required property string used
    required property string free
    /// Whether a screen reader is told elsewhere.
    property bool silent: false

    readonly property real room: caption.width - words.implicitWidth - Theme.spacingLarge
    readonly property bool fits: usedKey.shortWidth + legend.spacing + freeKey.shortWidth <= caption.room
    readonly property bool fitsWithSizes: usedKey.wholeWidth + legend.spacing + freeKey.wholeWidth <= caption.room

    implicitHeight: words.implicitHeight

    Label {
        id: words

        anchors.left: parent.left
        anchors.right: caption.fits ? legend.left : parent.right
        style: Label.Callout
        color: Theme.secondaryLabel
        text: caption.text
        Accessible.ignored: caption.silent
    }
    Row {
        id: legend

        anchors.right: parent.right
        visible: caption.fits
        spacing: Theme.spacingLarge

        LegendKey {
            id: usedKey

            shade: caption.tint
            title: qsTr("Used")
            size: caption.used
            sizeShown: caption.fitsWithSizes
            Accessible.ignored: caption.silent
        }
        LegendKey {
            id: freeKey

            shade: Theme.trackFill
            title: qsTr("Free")
            size: caption.free
            sizeShown: caption.fitsWithSizes
            Accessible.ignored: caption.silent
        }
    }
}
