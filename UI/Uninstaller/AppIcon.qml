// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick

/// The icon of an application, sharp at every screen density; empty until it is loaded.
Image {
    id: icon

    required property real size

    readonly property int pixels: Math.ceil(icon.size * Screen.devicePixelRatio)

    width: icon.size
    height: icon.size
    asynchronous: true
    sourceSize.width: icon.pixels
    sourceSize.height: icon.pixels
    Accessible.ignored: true
}
