// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The ring around the control that the keyboard acts on. A child of what it surrounds.
Rectangle {
    id: ring

    /// Whether the ring shows.
    required property bool shown
    /// The corner radius of what is surrounded.
    property real around: Theme.radius

    anchors.fill: parent
    anchors.margins: -3
    radius: ring.around + 3
    color: "transparent"
    border.width: 3
    border.color: Theme.focusRing
    visible: ring.shown
}
