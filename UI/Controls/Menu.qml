// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Korvane.UI

/// A menu of commands, for what lies under the pointer or below a button.
T.Menu {
    id: menu

    /// Opens at this place of an item; with the first command chosen if the keyboard asked for it.
    function show(place: Item, x: real, y: real, byKeyboard: bool): void {
        menu.popup(place, x, y);
        if (byKeyboard)
            menu.currentIndex = 0;
    }

    implicitWidth: Math.max(180, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.spacing
    padding: Theme.spacingTiny
    overlap: 1
    delegate: MenuItem { }
    // Once a screen reader is there, what the content lies in is a menu too, of no name.
    Component.onCompleted: menu.contentItem.parent.Accessible.ignored = true

    contentItem: ListView {
        implicitHeight: contentHeight
        implicitWidth: {
            let widest = 0;
            for (let row = 0; row < menu.count; ++row)
                widest = Math.max(widest, menu.itemAt(row).implicitWidth);
            return widest;
        }
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: Window.window ? contentHeight > Window.window.height : false
        clip: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: menu.title
    }

    background: Item {
        DropShadow {
            anchors.fill: parent
            radius: Theme.radius
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.radius
            color: Theme.elevated
            border.width: Theme.hairline
            border.color: Theme.controlBorder
        }
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.durationShort
        }
    }
}
