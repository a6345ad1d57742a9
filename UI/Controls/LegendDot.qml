// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The colour that something has in a bar.
Rectangle {
    id: dot

    required property color shade

    implicitWidth: Metrics.dot
    implicitHeight: Metrics.dot
    radius: height / 2
    color: dot.shade
    border.width: dot.shade.a < 1 ? Theme.hairline : 0
    border.color: Theme.checkBorder
    Accessible.ignored: true
}
