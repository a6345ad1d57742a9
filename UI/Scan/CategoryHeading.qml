// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The sticky heading of a category in a `ResultsList`: its name, how much it holds, and a box that ticks what is
/// selectable by default in it, or unticks it.
///
/// On Qt 6.4 a list makes its headings in a context in which a component of another file cannot be bound, so this one is
/// loaded by its address, is given nothing but the category, and finds its list by itself.
Item {
    id: heading

    required property string section

    readonly property ResultsList list: heading.parent === null ? null : heading.parent.parent as ResultsList
    readonly property ScanResultsModel rows: heading.list === null ? null : heading.list.viewModel.rows
    property var category: ({ title: "", sizeText: "", itemCount: 0, tickedCount: 0, shade: -1 })

    readonly property int ticks: heading.category.tickedCount === 0 ? Qt.Unchecked
        : heading.category.tickedCount < heading.category.itemCount ? Qt.PartiallyChecked : Qt.Checked

    function refresh(): void {
        if (heading.rows !== null)
            heading.category = heading.rows.category(heading.section);
    }

    width: heading.list === null ? 0 : heading.list.width
    implicitHeight: Metrics.headingHeight
    onRowsChanged: heading.refresh()
    onSectionChanged: heading.refresh()

    Connections {
        target: heading.list === null ? null : heading.list.viewModel

        function onSelectionChanged(): void {
            heading.refresh();
        }
    }

    Rectangle {
        anchors.fill: parent
        // As wide as what passes beneath, so that it leaves the round corners of the card alone.
        anchors.leftMargin: Theme.spacing
        anchors.rightMargin: Theme.spacing
        // The card's own colour, but opaque.
        color: Theme.card
        radius: Theme.radiusSmall
    }
    CheckBox {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.rowInset
        anchors.verticalCenter: parent.verticalCenter
        focusPolicy: Qt.NoFocus
        tristate: true
        checkState: heading.ticks
        onClicked: {
            heading.rows.toggleCategory(heading.section);
            heading.refresh();
        }
        Accessible.name: heading.category.title
    }
    LegendDot {
        id: dot

        anchors.left: parent.left
        anchors.leftMargin: Metrics.rowTextInset
        anchors.verticalCenter: parent.verticalCenter
        visible: heading.rows !== null && heading.rows.shares.telling
        shade: Theme.category(heading.category.shade)
    }
    Label {
        anchors.left: dot.visible ? dot.right : parent.left
        anchors.leftMargin: dot.visible ? Theme.spacing : Metrics.rowTextInset
        anchors.right: size.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Headline
        elide: Text.ElideMiddle
        text: ShownText.isolated(heading.category.title)
        Accessible.role: Accessible.Heading
    }
    Label {
        id: size

        anchors.right: parent.right
        anchors.rightMargin: Theme.spacingHuge
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Headline
        color: Theme.secondaryLabel
        text: heading.category.sizeText
    }
    Separator {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.spacingLarge
        anchors.rightMargin: Theme.spacingLarge
    }
}
