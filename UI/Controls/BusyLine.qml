// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A small sign that something is under way, beside what it is and how far it has come.
Item {
    id: line

    property string text: ""
    property string detail: ""

    implicitHeight: 56

    BusySpinner {
        id: spinner

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        color: Theme.secondaryLabel
        running: line.visible
    }
    Label {
        id: what

        anchors.left: spinner.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        color: Theme.secondaryLabel
        text: line.text
    }
    Label {
        anchors.left: what.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.baseline: what.baseline
        style: Label.Callout
        color: Theme.tertiaryLabel
        text: line.detail
    }
}
