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

    /// How far off the ring is drawn, so that it shows beside a fill of its own colour.
    property real gap: 0

    anchors.fill: parent
    anchors.margins: -Theme.focusRingWidth - ring.gap
    radius: ring.around + Theme.focusRingWidth + ring.gap
    color: "transparent"
    border.width: Theme.focusRingWidth
    border.color: Theme.focusRing
    visible: ring.shown
}
