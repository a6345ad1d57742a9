// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// Shows a text beside its parent while the pointer rests there. Costs nothing until then.
Item {
    id: area

    required property string text
    property T.ToolTip bubble: null

    anchors.fill: parent

    HoverHandler {
        id: hover
    }
    Timer {
        interval: Theme.toolTipDelay
        running: hover.hovered && area.text !== ""
        onTriggered: area.bubble = bubbleComponent.createObject(area) as T.ToolTip
    }
    Connections {
        target: hover

        function onHoveredChanged(): void {
            if (area.bubble !== null)
                area.bubble.destroy();
        }
    }
    Component {
        id: bubbleComponent

        T.ToolTip {
            id: tip

            parent: area
            visible: true
            x: Math.max(0, hover.point.position.x)
            y: area.height + Theme.spacing
            margins: Theme.spacing
            padding: Theme.spacing
            text: area.text
            implicitWidth: Math.min(Metrics.toolTipWidth, implicitContentWidth + 2 * padding)
            implicitHeight: implicitContentHeight + 2 * padding
            closePolicy: T.Popup.NoAutoClose

            contentItem: Text {
                text: ShownText.isolated(tip.text)
                textFormat: Text.PlainText
                font.family: Theme.fontFamily
                font.pixelSize: Theme.caption
                color: Theme.label
                wrapMode: Text.Wrap
                Accessible.role: Accessible.ToolTip
                Accessible.name: tip.text
            }
            background: Rectangle {
                radius: Theme.radiusSmall
                color: Theme.elevated
                border.width: Theme.hairline
                border.color: Theme.controlBorder
            }
        }
    }
}
