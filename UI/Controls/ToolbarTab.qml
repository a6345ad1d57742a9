// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One tab of `ToolbarTabs`.
T.TabButton {
    id: tab

    required property string symbol

    width: implicitWidth
    implicitWidth: Math.max(76, implicitContentWidth + 24)
    implicitHeight: 56
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: tab.text
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: tab.checked
    Accessible.onPressAction: tab.toggle()

    readonly property color ink: tab.checked ? Theme.linkLabel : Theme.secondaryLabel

    contentItem: Column {
        topPadding: Theme.spacing
        spacing: Theme.spacingHair

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: tab.symbol
            size: Metrics.symbolMedium
            color: tab.ink
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: tab.text
            textFormat: Text.PlainText
            font.family: Theme.fontFamily
            font.pixelSize: Theme.caption
            font.weight: tab.checked ? Font.Bold : Font.Medium
            color: tab.ink
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: tab.checked || tab.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            shown: tab.visualFocus
        }
    }
}
