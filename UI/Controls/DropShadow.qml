// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The shadow of what it fills, a little below it.
SoftShadow {
    id: shadow

    readonly property int drop: Math.round(shadow.blur / 4)

    anchors.margins: -shadow.blur
    anchors.topMargin: shadow.drop - shadow.blur
    anchors.bottomMargin: -shadow.blur - shadow.drop
    blur: Theme.cardShadow
    color: Theme.shadow
}
