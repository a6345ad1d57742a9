// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A line of text to be typed, with an optional symbol before it.
T.TextField {
    id: field

    /// The name of the symbol inside the field; empty for none.
    property string symbol: ""

    readonly property bool mirrored: field.LayoutMirroring.enabled
    readonly property real startPadding: field.symbol === "" ? Theme.spacing : Metrics.controlHeight

    implicitWidth: 220
    implicitHeight: Metrics.controlHeight
    leftPadding: field.mirrored ? Theme.spacing : field.startPadding
    rightPadding: field.mirrored ? field.startPadding : Theme.spacing
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    color: Theme.label
    placeholderTextColor: Theme.tertiaryLabel
    selectionColor: Theme.prominentFill
    selectedTextColor: Theme.onAccent
    selectByMouse: true
    opacity: field.enabled ? 1 : Theme.disabledOpacity
    Accessible.name: field.placeholderText

    Text {
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        verticalAlignment: Text.AlignVCenter
        visible: field.length === 0 && field.preeditText === ""
        text: field.placeholderText
        font: field.font
        color: field.placeholderTextColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        visible: field.symbol !== ""
        name: field.symbol
        size: Metrics.symbolSmall
        color: Theme.tertiaryLabel
    }

    background: Rectangle {
        radius: Theme.radius
        color: Theme.field
        border.width: Theme.hairline
        border.color: field.hovered ? Theme.secondaryLabel : Theme.checkBorder

        FocusRing {
            shown: field.activeFocus
        }
    }
}
