// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The tabs of a settings window: a symbol over a text each, centred.
T.TabBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 72
    spacing: Theme.spacingTiny
    padding: Theme.spacing
    Accessible.role: Accessible.PageTabList

    Keys.onLeftPressed: bar.step(bar.mirrored ? 1 : -1)
    Keys.onRightPressed: bar.step(bar.mirrored ? -1 : 1)

    /// Selects the tab so many places on, if there is one, and puts the keyboard on it.
    function step(places: int): void {
        const next = bar.itemAt(bar.currentIndex + places);
        if (next === null)
            return;
        next.forceActiveFocus(Qt.TabFocusReason);
        bar.setCurrentIndex(bar.currentIndex + places);
    }

    contentItem: Item {
        ListView {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(bar.contentWidth, parent.width)
            height: parent.height
            model: bar.contentModel
            currentIndex: bar.currentIndex
            spacing: bar.spacing
            orientation: ListView.Horizontal
            interactive: false
            // The bar moves, not the list: it would lose its tie to the bar.
            keyNavigationEnabled: false
        }
    }

    background: Rectangle {
        color: Theme.sidebar

        Separator {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }
}
