// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A slim scroll bar that widens under the pointer. Attach it with `T.ScrollBar.vertical`.
T.ScrollBar {
    id: control

    implicitWidth: 12
    implicitHeight: 12
    minimumSize: 0.08
    padding: 3
    visible: control.policy !== T.ScrollBar.AlwaysOff && control.size < 1
    hoverEnabled: true

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.tertiaryLabel
        opacity: control.pressed || control.hovered ? 0.9 : 0.45

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.durationShort
            }
        }
    }
}
