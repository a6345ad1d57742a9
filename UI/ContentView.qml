// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Korvane.UI

/// The main window: the sidebar of modules beside the selected module's screen.
Window {
    id: window

    title: qsTr("Korvane")
    width: 1120
    height: 720
    minimumWidth: 960
    minimumHeight: 620
    visible: true
    color: Theme.window

    GradientFill {
        anchors.fill: parent
        colors: Theme.windowBackground
    }
}
