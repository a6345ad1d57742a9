// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The shares of the categories as a bar over its legend; nothing where one category has it all, or there is none.
Column {
    id: part

    required property ScanShares shares

    /// A category was chosen; the list begins it at this row.
    signal chosen(int row, bool byKeyboard)

    spacing: Theme.spacing

    ShareBar {
        width: parent.width
        shares: part.shares
        onChosen: row => part.chosen(row, false)
    }
    ShareLegend {
        // The names stand under the edge of the bar.
        x: -Theme.spacing
        width: parent.width + 2 * Theme.spacing
        shares: part.shares
        onChosen: (row, byKeyboard) => part.chosen(row, byKeyboard)
    }
}
