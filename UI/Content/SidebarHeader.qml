// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The application's name, and, where the platform has no menu bar of its own, the application menu.
Item {
    id: header

    signal settingsRequested

    implicitHeight: Metrics.sidebarRowHeight

    IconTile {
        id: mark

        anchors.left: parent.left
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        size: Metrics.symbolLarge
        symbol: "sparkles"
        gradient: Theme.heroGradient
    }
    Label {
        anchors.left: mark.right
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Title2
        text: qsTr("Korvane")
        Accessible.role: Accessible.Heading
    }
    Button {
        id: menuButton

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: Qt.platform.os !== "osx"
        kind: Button.Borderless
        ink: Theme.secondaryLabel
        symbol: "ellipsis"
        Accessible.name: qsTr("Application menu")
        onClicked: menu.show(menuButton, menuButton.mirrored ? menuButton.width - menu.width : 0,
            menuButton.height + Theme.spacingTiny, menuButton.visualFocus)

        Menu {
            id: menu

            title: qsTr("Application menu")

            MenuItem {
                text: qsTr("Settings…")
                symbol: "gearshape"
                keys: qsTr("Ctrl+,")
                onTriggered: header.settingsRequested()
            }
            MenuSeparator { }
            MenuItem {
                text: qsTr("Quit Korvane")
                symbol: "power"
                keys: qsTr("Ctrl+Q")
                onTriggered: Qt.quit()
            }
        }
    }
}
