// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The chosen items are being removed; that cannot be stopped half way.
FocusScope {
    Column {
        anchors.centerIn: parent
        spacing: Theme.spacingHuge

        BusySpinner {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Metrics.spinnerLarge
            height: Metrics.spinnerLarge
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            style: Label.Title
            text: qsTr("Cleaning…")
            Accessible.role: Accessible.Heading
        }
    }
}
