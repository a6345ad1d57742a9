// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// How the last run of a task stands, or what keeps it from being run.
Item {
    id: area

    required property int status
    required property string message

    readonly property bool done: area.status === TaskListModel.Done
    readonly property bool failed: area.status === TaskListModel.Failed
    readonly property bool unavailable: area.status === TaskListModel.Unavailable

    implicitHeight: Math.max(Metrics.controlHeight, text.implicitHeight)

    BusySpinner {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Metrics.symbolMedium
        height: Metrics.symbolMedium
        color: Theme.secondaryLabel
        running: area.status === TaskListModel.Running
    }
    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: text.visible
        name: area.done ? "checkmark.circle.fill" : area.failed ? "exclamationmark.triangle.fill" : "info.circle"
        size: Metrics.symbolSmall
        color: area.done ? Theme.green : area.failed ? Theme.orange : Theme.secondaryLabel
    }
    Label {
        id: text

        anchors.left: sign.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: area.done || area.failed || area.unavailable
        style: area.done ? Label.Callout : Label.Caption
        color: area.done ? Theme.successLabel : area.failed ? Theme.warningLabel : Theme.secondaryLabel
        // What the user can do something about is shown whole, what went wrong in one line.
        wrapMode: area.unavailable ? Text.Wrap : Text.NoWrap
        maximumLineCount: area.unavailable ? 4 : 1
        text: area.done ? qsTr("Done") : area.message
        Accessible.role: area.failed ? Accessible.AlertMessage : Accessible.StaticText
    }
    ToolTipArea {
        text: area.message
    }
}
