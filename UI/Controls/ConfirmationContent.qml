// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// What stands in a `ConfirmationDialog`.
FocusScope {
    id: content

    required property string title
    required property string message
    required property string confirmText
    required property string cancelText
    required property string symbol
    required property color accent
    required property bool destructive

    signal confirmed
    signal cancelled

    /// Puts the keyboard on the button that Return presses: the harmless one when the other destroys.
    function focusDefault(): void {
        const button = content.destructive ? cancelButton : confirmButton;
        button.forceActiveFocus(Qt.TabFocusReason);
        // Opened another time it has the keyboard already, without showing it.
        button.focusReason = Qt.TabFocusReason;
    }

    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Dialog
    Accessible.name: content.title

    ColumnLayout {
        id: column

        width: parent.width
        spacing: Theme.spacing

        IconTile {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Theme.spacing
            symbol: content.symbol
            accent: content.accent
            size: Metrics.dialogTile
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            style: Label.Title2
            text: content.title
            Accessible.role: Accessible.Heading
        }
        Label {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.secondaryLabel
            text: content.message
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingLarge
            spacing: Theme.spacingMedium

            Button {
                id: cancelButton

                Layout.fillWidth: true
                Layout.preferredWidth: 100
                // Equally wide as long as both texts fit.
                Layout.minimumWidth: implicitWidth
                text: content.cancelText
                onClicked: content.cancelled()
            }
            Button {
                id: confirmButton

                Layout.fillWidth: true
                Layout.preferredWidth: 100
                Layout.minimumWidth: implicitWidth
                kind: content.destructive ? Button.Destructive : Button.Prominent
                text: content.confirmText
                onClicked: content.confirmed()
            }
        }
    }
}
