// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The banner, and below it the screen of what is selected in the sidebar.
Item {
    id: detail

    required property ContentViewModel viewModel

    /// Brings the keyboard to the screen: to where it was on it, or to where it begins.
    function lead(): void {
        area.forceActiveFocus(Qt.TabFocusReason);
        if (area.Window.activeFocusItem === area)
            area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
    }

    FullDiskAccessBanner {
        id: banner

        anchors.left: parent.left
        anchors.right: parent.right
        viewModel: detail.viewModel.access
    }
    FocusScope {
        id: area

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        clip: true

        /// Takes the keyboard to a screen that was opened by what it is on.
        function lead(screen: Item): void {
            const former = area.T.ApplicationWindow.activeFocusControl as T.Control;
            if (area.activeFocus)
                screen.forceActiveFocus(former !== null && former.visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason);
        }

        DashboardView {
            anchors.fill: parent
            visible: detail.viewModel.selectedModule === null
            viewModel: detail.viewModel.dashboard
        }
        // A repeater of at most one: a screen keeps its view model for life, also while it is being replaced.
        Repeater {
            model: detail.viewModel.scan === null ? [] : [detail.viewModel.scan]

            ScanView {
                id: scan

                required property ScanViewModel modelData

                anchors.fill: parent
                focus: true
                viewModel: modelData
                Component.onCompleted: area.lead(scan)
            }
        }
        Repeater {
            model: detail.viewModel.uninstaller === null ? [] : [detail.viewModel.uninstaller]

            UninstallerView {
                id: uninstaller

                required property UninstallerViewModel modelData

                anchors.fill: parent
                focus: true
                viewModel: modelData
                Component.onCompleted: area.lead(uninstaller)
            }
        }
        Repeater {
            model: detail.viewModel.maintenance === null ? [] : [detail.viewModel.maintenance]

            MaintenanceView {
                id: maintenance

                required property MaintenanceViewModel modelData

                anchors.fill: parent
                focus: true
                viewModel: modelData
                Component.onCompleted: area.lead(maintenance)
            }
        }
        Repeater {
            model: detail.viewModel.device === null ? [] : [detail.viewModel.device]

            IOSDeviceView {
                id: device

                required property IOSDeviceViewModel modelData

                anchors.fill: parent
                focus: true
                viewModel: modelData
                Component.onCompleted: area.lead(device)
            }
        }
    }
}
