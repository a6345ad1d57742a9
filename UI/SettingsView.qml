// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import QtQuick.Window
import Korvane.UI

/// The settings window: the preferences, and what this application is.
Window {
    id: window

    required property SettingsViewModel viewModel

    title: qsTr("Settings")
    width: Metrics.settingsWidth
    height: Metrics.settingsHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    color: Theme.window
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    // The keyboard begins on the tab that is shown.
    onActiveChanged: {
        if (window.active && !(window.activeFocusItem as T.Control))
            tabs.currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    Shortcut {
        sequences: ["Ctrl+W", "Escape"]
        onActivated: window.close()
    }
    HeldKeys {
    }
    ToolbarTabs {
        id: tabs

        width: parent.width
        Accessible.name: window.title

        ToolbarTab {
            symbol: "gearshape"
            text: qsTr("General")
        }
        ToolbarTab {
            symbol: "info.circle"
            text: qsTr("About")
        }
    }
    StackLayout {
        anchors.fill: parent
        anchors.topMargin: tabs.height
        currentIndex: tabs.currentIndex

        GeneralSettingsView {
            viewModel: window.viewModel
            shown: window.visible && tabs.currentIndex === 0
        }
        AboutSettingsView {
            viewModel: window.viewModel
        }
    }
}
