// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What can be done with one found item besides cleaning it; its title is the item's name.
Menu {
    id: menu

    required property ScanItemActions actions
    /// The item that the menu was opened for.
    property string itemId: ""

    MenuItem {
        text: Qt.platform.os === "osx" ? qsTr("Show in Finder") : qsTr("Show in File Manager")
        symbol: "folder"
        onTriggered: menu.actions.showInFileManager(menu.itemId)
    }
    MenuItem {
        text: qsTr("Copy Path")
        symbol: "doc.on.clipboard"
        onTriggered: menu.actions.copyPath(menu.itemId)
    }
}
