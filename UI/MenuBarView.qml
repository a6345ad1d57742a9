// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import Korvane.UI

/// The panel at the icon in the menu bar: when was cleaned last, and the quick ways in and out. A window without a frame
/// that is as large as what it shows; the application places it and hides it when it loses the keyboard.
Window {
    id: panel

    required property MenuBarViewModel viewModel
    /// Of the corners of the panel, for those who cut the window to its shape.
    readonly property real radius: Theme.radiusLarge

    title: qsTr("Korvane")
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: "transparent"
    width: Math.min(Metrics.widestPanel, Math.max(Metrics.panelWidth, content.implicitWidth + 2 * content.anchors.margins))
    height: content.implicitHeight + 2 * content.anchors.margins
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    onVisibleChanged: {
        // Where the keyboard is shows with the first key.
        if (panel.visible)
            openRow.forceActiveFocus(Qt.PopupFocusReason);
    }

    HeldKeys {
    }
    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: panel.hide()
    }
    Shortcut {
        sequences: ["Ctrl+Q"]
        onActivated: panel.viewModel.quit()
    }
    Rectangle {
        anchors.fill: parent
        radius: panel.radius
        color: Theme.elevated
        border.width: Theme.hairline
        border.color: Theme.elevatedBorder
        Accessible.role: Accessible.Pane
        Accessible.name: panel.title
    }
    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.spacing
        spacing: Theme.spacingHair

        LastCleanup {
            Layout.fillWidth: true
            Layout.margins: Theme.spacing
            visible: panel.viewModel.hasLastCleanup
            viewModel: panel.viewModel
        }
        Separator {
            Layout.fillWidth: true
            Layout.margins: Theme.spacingTiny
            visible: panel.viewModel.hasLastCleanup
        }
        MenuBarRow {
            id: openRow

            symbol: "macwindow"
            text: qsTr("Open Korvane")
            onClicked: {
                panel.hide();
                panel.viewModel.open();
            }
        }
        MenuBarRow {
            symbol: "trash.circle.fill"
            accent: Theme.cyan
            text: qsTr("Scan System Junk")
            onClicked: {
                panel.hide();
                panel.viewModel.scanSystemJunk();
            }
        }
        MenuBarRow {
            symbol: "memorychip"
            accent: Theme.green
            text: qsTr("Free Up RAM")
            enabled: !panel.viewModel.freeingRam
            onClicked: {
                panel.hide();
                panel.viewModel.freeUpRam();
            }
        }
        Separator {
            Layout.fillWidth: true
            Layout.margins: Theme.spacingTiny
        }
        MenuBarRow {
            symbol: "power"
            accent: Theme.secondaryLabel
            text: qsTr("Quit Korvane")
            onClicked: {
                panel.hide();
                panel.viewModel.quit();
            }
        }
    }
}
