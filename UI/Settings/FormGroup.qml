// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Rows of a form that belong together, on one surface.
Rectangle {
    id: group

    default property alias rows: column.data

    implicitHeight: column.implicitHeight + 2 * column.y
    radius: Theme.radiusLarge
    color: Theme.cardBackground
    border.width: Theme.hairline
    border.color: Theme.cardBorder

    Column {
        id: column

        x: Theme.spacingLarge
        y: Theme.spacingTiny
        width: group.width - 2 * x
        spacing: Theme.spacingTiny
    }
}
