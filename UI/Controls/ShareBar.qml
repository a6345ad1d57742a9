// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A bar of what each part has of a whole, in the colours that the parts have elsewhere.
Row {
    id: bar

    required property ScanShares shares

    /// A part was pressed; the list begins it at this row.
    signal chosen(int row)

    height: Metrics.shareBarHeight
    spacing: Theme.spacingHair
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Shares of the categories")
    Accessible.description: bar.shares.summary

    Repeater {
        id: parts

        model: bar.shares

        Rectangle {
            id: part

            required property string title
            required property string size
            required property double share
            required property int shade
            required property int firstRow

            width: (bar.width - (parts.count - 1) * bar.spacing) * part.share
            height: bar.height
            radius: Theme.radiusTiny
            color: Theme.category(part.shade)
            Accessible.ignored: true

            TapHandler {
                onTapped: bar.chosen(part.firstRow)
            }
            ToolTipArea {
                text: part.title + "\n" + part.size
            }
        }
    }
}
