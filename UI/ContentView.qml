// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Korvane.UI

/// The main window: the sidebar of modules beside the selected module's screen.
Window {
    id: window

    required property ContentViewModel viewModel

    title: qsTr("Korvane")
    width: 1080
    height: 700
    minimumWidth: 960
    minimumHeight: 620
    visible: true
    color: Theme.window

    function showSettings(): void {
        settings.active = true;
        const view = settings.item as Window;
        view.show();
        view.raise();
        view.requestActivate();
    }

    Shortcut {
        sequences: ["Ctrl+,"]
        onActivated: window.showSettings()
    }
    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: Qt.quit()
    }
    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: window.close()
    }
    Connections {
        target: window.viewModel

        function onSettingsRequested(): void {
            window.showSettings();
        }
    }

    GradientFill {
        anchors.fill: parent
        colors: Theme.windowBackground
    }
    Sidebar {
        id: sidebar

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: 232
        viewModel: window.viewModel
        onSettingsRequested: window.showSettings()
    }
    DetailArea {
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        viewModel: window.viewModel
    }
    Loader {
        id: settings

        active: false
        sourceComponent: SettingsView {
            viewModel: window.viewModel.settings
            transientParent: window
        }
    }
}
