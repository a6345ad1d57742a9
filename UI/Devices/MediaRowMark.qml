// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The leading end of a `MediaRow`: the arrow of a folder, and the box, which in the row of a folder ticks all its files.
Item {
    id: mark

    required property string name
    required property bool isFolder
    required property bool open
    required property int ticks
    required property bool down
    required property bool hovered

    /// The pointer has come down on the box of a folder.
    signal boxPressed
    signal tickRequested

    width: Metrics.treeFileInset

    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        visible: mark.isFolder
        name: mark.open ? "chevron.down" : "chevron.right"
        size: Metrics.symbolSmall
        color: Theme.secondaryLabel
    }
    CheckBox {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.treeBoxInset
        anchors.verticalCenter: parent.verticalCenter
        visible: mark.isFolder
        // The row has the keyboard, and does the same.
        focusPolicy: Qt.NoFocus
        tristate: true
        checkState: mark.ticks
        onPressed: mark.boxPressed()
        onClicked: mark.tickRequested()
        Accessible.name: mark.name
    }
    CheckMark {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.treeFileBoxInset
        anchors.verticalCenter: parent.verticalCenter
        visible: !mark.isFolder
        checkState: mark.ticks
        down: mark.down
        hovered: mark.hovered
    }
}
