// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Korvane.UI

/// One command of a `Menu`.
T.MenuItem {
    id: item

    /// The name of the symbol before the text; empty for none.
    property string symbol: ""
    /// The keys that do the same, as text.
    property string keys: ""

    implicitWidth: Math.max(160, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: 30
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    opacity: item.enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    Accessible.name: item.text
    Accessible.description: item.keys
    Accessible.onPressAction: {
        if (item.enabled)
            item.clicked();
    }

    readonly property color ink: item.highlighted ? Theme.onAccent : Theme.label

    contentItem: RowLayout {
        spacing: Theme.spacing

        Symbol {
            visible: item.symbol !== ""
            name: item.symbol
            size: Metrics.symbolSmall
            color: item.ink
        }
        Text {
            Layout.fillWidth: true
            text: item.text
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            font: item.font
            color: item.ink
            Accessible.ignored: true
        }
        Text {
            Layout.leftMargin: Theme.spacingHuge
            visible: item.keys !== ""
            text: item.keys
            textFormat: Text.PlainText
            font.family: Theme.fontFamily
            font.pixelSize: Theme.callout
            color: item.highlighted ? Theme.onAccent : Theme.tertiaryLabel
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radiusTiny
        color: item.highlighted ? Theme.prominentFill : "transparent"
    }
}
