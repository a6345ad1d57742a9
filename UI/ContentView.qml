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
    /// Made when it is first asked for.
    property SettingsView settings: null

    title: qsTr("Korvane")
    width: Metrics.windowWidth
    height: Metrics.windowHeight
    minimumWidth: Metrics.minimumWindowWidth
    minimumHeight: Metrics.minimumWindowHeight
    visible: true
    color: Theme.window
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    function showSettings(): void {
        if (window.settings === null)
            window.settings = settingsComponent.createObject(window, {
                "viewModel": window.viewModel.settings
            }) as SettingsView;
        window.settings.show();
        window.settings.raise();
        window.settings.requestActivate();
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

    HeldKeys {
    }
    GradientFill {
        anchors.fill: parent
        colors: Theme.windowBackground
    }
    Backstage {
        id: backstage

        anchors.fill: parent
        focus: true
        closed: ScreenReader.asking
        Accessible.ignored: !backstage.closed
        Accessible.role: Accessible.Pane
        Accessible.name: window.title

        Sidebar {
            id: sidebar

            anchors.left: parent.left
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            width: Metrics.sidebarWidth
            viewModel: window.viewModel
            onSettingsRequested: window.showSettings()
            onScreenRequested: detail.lead()

            // In an item of the window, so that it is still while a question is open.
            Shortcut {
                sequences: ["F6"]
                onActivated: {
                    if (sidebar.holds(window.activeFocusItem))
                        detail.lead();
                    else
                        sidebar.lead();
                }
            }
        }
        DetailArea {
            id: detail

            anchors.left: sidebar.right
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            viewModel: window.viewModel
        }
    }
    Component {
        id: settingsComponent

        SettingsView {
            transientParent: window
        }
    }
}
