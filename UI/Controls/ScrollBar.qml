// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A slim scroll bar that widens under the pointer. Attach it with `T.ScrollBar.vertical`.
T.ScrollBar {
    id: control

    implicitWidth: Metrics.scrollBarWidth
    implicitHeight: Metrics.scrollBarWidth
    minimumSize: 0.08
    padding: (Metrics.scrollBarWidth - Metrics.scrollBarThickness) / 2
    visible: control.policy !== T.ScrollBar.AlwaysOff && control.size < 1
    hoverEnabled: true

    contentItem: Rectangle {
        implicitWidth: Metrics.scrollBarThickness
        implicitHeight: Metrics.scrollBarThickness
        radius: Metrics.scrollBarThickness / 2
        color: Theme.tertiaryLabel
        opacity: control.pressed || control.hovered ? 1 : Theme.restingOpacity

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.durationShort
            }
        }
    }
}
