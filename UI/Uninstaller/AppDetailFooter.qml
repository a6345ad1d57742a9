// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The button that takes the application away, beside what it does.
FocusScope {
    id: footer

    required property UninstallerViewModel viewModel

    signal uninstallRequested

    /// Brings the keyboard to the button.
    function lead(): void {
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: Metrics.footerHeight

    Separator {
        width: parent.width
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingHuge
        anchors.right: button.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        style: Label.Callout
        color: Theme.secondaryLabel
        wrapMode: Text.Wrap
        maximumLineCount: 3
        text: footer.viewModel.selected.note
    }
    Button {
        id: button

        anchors.right: parent.right
        anchors.rightMargin: Theme.spacingHuge
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        large: true
        kind: Button.Prominent
        symbol: "trash"
        text: qsTr("Uninstall")
        enabled: !footer.viewModel.selectedRunning
        remark: footer.viewModel.selected.note
        onClicked: footer.uninstallRequested()
    }
}
