// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The applications on the left, and what the selected one consists of on the right.
FocusScope {
    id: view

    required property UninstallerViewModel viewModel

    signal uninstallRequested

    AppsPane {
        id: apps

        anchors.left: parent.left
        width: Math.round(Metrics.listPane(view.width))
        height: parent.height
        focus: true
        viewModel: view.viewModel
        onDetailRequested: detail.lead()
    }
    Separator {
        id: line

        anchors.left: apps.right
        height: parent.height
    }
    AppDetail {
        id: detail

        anchors.left: line.right
        anchors.right: parent.right
        height: parent.height
        viewModel: view.viewModel
        onUninstallRequested: view.uninstallRequested()
    }
}
