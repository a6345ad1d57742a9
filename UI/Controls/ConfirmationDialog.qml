// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A sheet that asks before something is done: a title, what will happen, and two buttons.
///
/// Opens with the focus on the button that does nothing when what it confirms is destructive. `accepted` tells that the
/// user confirmed, `rejected` that they did not; Escape rejects.
T.Dialog {
    id: dialog

    /// What will happen.
    required property string message
    /// The text of the confirming button.
    required property string confirmText
    property string cancelText: qsTr("Cancel")
    property string symbol: "exclamationmark.triangle.fill"
    property color accent: Theme.orange
    property bool destructive: false

    /// Whether it was answered already; while it fades a second press is none.
    property bool answered: false

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    padding: Theme.spacingHuge
    implicitWidth: Metrics.dialogWidth
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: {
        dialog.answered = false;
        ScreenReader.setAsking(dialog, true);
    }
    onAboutToHide: ScreenReader.setAsking(dialog, false)
    // Once a screen reader is there, what the content lies in is a dialog too, of no name.
    Component.onCompleted: dialog.contentItem.parent.Accessible.ignored = true
    onOpened: (dialog.contentItem as ConfirmationContent).focusDefault()

    contentItem: ConfirmationContent {
        focus: true
        title: dialog.title
        message: dialog.message
        confirmText: dialog.confirmText
        cancelText: dialog.cancelText
        symbol: dialog.symbol
        accent: dialog.accent
        destructive: dialog.destructive
        onConfirmed: {
            if (dialog.answered)
                return;
            dialog.answered = true;
            dialog.accept();
        }
        onCancelled: {
            dialog.answered = true;
            dialog.reject();
        }
    }

    background: Item {
        DropShadow {
            anchors.fill: parent
            radius: Theme.radiusCard
            blur: Theme.dialogShadow
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.radiusCard
            color: Theme.elevated
            border.width: Theme.hairline
            border.color: Theme.controlBorder
        }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.durationShort
        }
        NumberAnimation {
            property: "scale"
            from: Theme.animated ? Theme.enteringScale : 1
            to: 1
            duration: Theme.durationShort
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.durationShort
        }
    }
}
