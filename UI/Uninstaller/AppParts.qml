// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The application itself, and everything that it left behind. The arrow keys scroll.
Flickable {
    id: parts

    required property UninstallerViewModel viewModel

    readonly property bool overflows: parts.contentHeight > parts.height

    function scroll(by: real): void {
        parts.contentY = Math.max(0, Math.min(parts.contentHeight - parts.height, parts.contentY + by));
    }

    contentHeight: column.height + 2 * Theme.spacingLarge
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: parts.visible && parts.overflows
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Application and leftovers")
    Keys.onDownPressed: parts.scroll(Metrics.rowHeight)
    Keys.onUpPressed: parts.scroll(-Metrics.rowHeight)
    T.ScrollBar.vertical: ScrollBar { }

    Connections {
        target: parts.viewModel

        function onSelectedAppChanged() {
            parts.contentY = 0;
        }
    }
    Column {
        id: column

        x: Theme.spacingHuge
        y: Theme.spacingLarge
        width: Math.min(parts.width - 2 * Theme.spacingHuge, Metrics.pageWidth)
        spacing: Theme.spacing

        SectionHeader {
            width: parent.width
            text: qsTr("Application")
        }
        Card {
            width: parent.width
            height: application.height
            radius: Theme.radiusLarge
            shadow: false

            PartRow {
                id: application

                width: parent.width
                name: parts.viewModel.selected.name
                path: parts.viewModel.selected.path
                size: parts.viewModel.selected.sizeText
            }
        }
        Item {
            width: 1
            height: Theme.spacing
        }
        SectionHeader {
            width: parent.width
            text: parts.viewModel.selected.leftoversTitle
        }
        Card {
            width: parent.width
            height: rows.count > 0 ? leftovers.height : nothing.height + 2 * Theme.spacingLarge
            radius: Theme.radiusLarge
            shadow: false

            Label {
                id: nothing

                x: Theme.spacingLarge
                y: Theme.spacingLarge
                width: parent.width - 2 * Theme.spacingLarge
                visible: rows.count === 0
                wrapMode: Text.Wrap
                color: Theme.secondaryLabel
                text: parts.viewModel.selected.withoutLeftovers
            }
            Column {
                id: leftovers

                width: parent.width

                Repeater {
                    id: rows

                    model: parts.viewModel.leftovers

                    PartRow {
                        required property int index

                        width: leftovers.width
                        separated: index > 0
                    }
                }
            }
        }
    }
    FocusRing {
        parent: parts
        anchors.margins: Theme.focusRingWidth
        shown: parts.activeFocus
    }
}
