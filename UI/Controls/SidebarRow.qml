// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A row of the sidebar: a tinted symbol and a title.
T.AbstractButton {
    id: row

    required property string symbol
    property color accent: Theme.blue
    property bool selected: false

    implicitWidth: 200
    implicitHeight: Metrics.sidebarRowHeight
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()
    Accessible.role: Accessible.Button
    Accessible.name: row.text
    Accessible.selectable: true
    Accessible.selected: row.selected
    Accessible.onPressAction: row.clicked()

    contentItem: Item {
        Symbol {
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: Metrics.symbolMedium
            color: row.accent
        }
        Label {
            anchors.fill: parent
            anchors.leftMargin: Metrics.sidebarTextInset
            anchors.rightMargin: Theme.spacing
            verticalAlignment: Text.AlignVCenter
            text: row.text
            // A long name in another language becomes a little smaller before it is cut.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.callout
            font.weight: row.selected ? Font.DemiBold : Font.Medium
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: Theme.radius
        color: row.selected ? Theme.selectionFill : row.down ? Theme.pressedFill
            : row.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            shown: row.visualFocus
        }
    }
}
