// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// What could not be removed, each with the reason in the platform's words.
ListView {
    id: list

    /// What the list takes when nothing of it needs to be scrolled to.
    readonly property real fullHeight: list.count * Metrics.tallRowHeight + list.topMargin + list.bottomMargin

    clip: true
    activeFocusOnTab: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    topMargin: Theme.spacing
    bottomMargin: Theme.spacing
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Items that could not be removed")
    T.ScrollBar.vertical: ScrollBar { }

    ReadingOrder {
        of: list.contentItem
        rowHeight: Metrics.tallRowHeight
    }

    delegate: Item {
        id: row

        required property string path
        required property string message

        width: list.width
        height: Metrics.tallRowHeight
        Accessible.role: Accessible.ListItem
        Accessible.name: row.path
        Accessible.description: row.message
        Accessible.focusable: true
        Accessible.focused: row.activeFocus

        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.spacing
            radius: Theme.radius
            color: "transparent"
            border.width: row.activeFocus ? Theme.rowRing : 0
            border.color: Theme.focusRing
        }
        Symbol {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.rowInset
            anchors.verticalCenter: parent.verticalCenter
            name: "exclamationmark.triangle.fill"
            size: Metrics.symbolMedium
            color: Theme.warningLabel
        }
        Column {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: Metrics.rowTextInset
            anchors.rightMargin: Theme.spacingHuge
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spacingHair

            Label {
                width: parent.width
                elide: Text.ElideMiddle
                text: ShownText.isolated(row.path)
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                style: Label.Callout
                color: Theme.secondaryLabel
                text: ShownText.isolated(row.message)
                Accessible.ignored: true
            }
        }
        ToolTipArea {
            text: row.path + "\n" + row.message
        }
    }
}
