// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// What the colours of a `ShareBar` stand for; a press leads to the part in the list. Tab leads to one entry, the arrow
/// keys to the others.
Flow {
    id: legend

    required property ScanShares shares
    /// The entry that Tab leads to.
    property int current: 0

    /// An entry was pressed; the list begins it at this row.
    signal chosen(int row, bool byKeyboard)

    function moveTo(entry: int): void {
        const item = entries.itemAt(Math.max(0, Math.min(entries.count - 1, entry)));
        if (item !== null)
            item.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.spacingTiny
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Categories")

    Repeater {
        id: entries

        model: legend.shares

        T.AbstractButton {
            id: entry

            required property int index
            required property string title
            required property string size
            required property int shade
            required property int firstRow

            implicitWidth: implicitContentWidth + leftPadding + rightPadding
            implicitHeight: implicitContentHeight + topPadding + bottomPadding
            padding: Theme.spacingTiny
            horizontalPadding: Theme.spacing
            hoverEnabled: true
            focusPolicy: entry.index === legend.current ? Qt.StrongFocus : Qt.ClickFocus
            text: entry.title
            Accessible.name: entry.title
            Accessible.description: entry.size
            Accessible.onPressAction: legend.chosen(entry.firstRow, true)
            onClicked: legend.chosen(entry.firstRow, entry.visualFocus)
            onActiveFocusChanged: {
                if (entry.activeFocus)
                    legend.current = entry.index;
            }
            Keys.onReturnPressed: legend.chosen(entry.firstRow, true)
            Keys.onEnterPressed: legend.chosen(entry.firstRow, true)
            Keys.onLeftPressed: legend.moveTo(entry.index + (entry.mirrored ? 1 : -1))
            Keys.onRightPressed: legend.moveTo(entry.index + (entry.mirrored ? -1 : 1))
            Keys.onPressed: event => {
                event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
                if (event.accepted)
                    legend.moveTo(event.key === Qt.Key_Home ? 0 : entries.count - 1);
            }

            contentItem: LegendKey {
                shade: Theme.category(entry.shade)
                title: entry.title
                size: entry.size
                Accessible.ignored: true
            }
            background: Rectangle {
                radius: Theme.radiusSmall
                color: entry.down ? Theme.pressedFill : entry.hovered ? Theme.hoverFill : "transparent"

                FocusRing {
                    shown: entry.visualFocus
                    around: parent.radius
                }
            }
        }
    }
}
