// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// One maintenance task: what it is good for, how its last run stands, and the button that runs it.
Card {
    id: card

    required property int index
    required property string taskId
    required property string title
    required property string subtitle
    required property string symbol
    required property int status
    required property string message
    required property bool runnable

    signal runRequested

    implicitHeight: column.implicitHeight + 2 * Theme.spacingLarge
    Accessible.role: Accessible.Grouping
    Accessible.name: card.title

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.spacingLarge
        spacing: Theme.spacing

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacing

            Symbol {
                name: card.symbol
                size: Metrics.symbolMedium
                color: Theme.green
            }
            Label {
                Layout.fillWidth: true
                style: Label.Headline
                text: card.title
                Accessible.role: Accessible.Heading
            }
        }
        Label {
            Layout.fillWidth: true
            style: Label.Callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: card.subtitle
        }
        // The last row of every card is at the bottom, however long its texts are.
        Item {
            Layout.fillHeight: true
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacing

            TaskStatus {
                Layout.fillWidth: true
                status: card.status
                message: card.message
            }
            Button {
                id: run

                // Where the keyboard begins.
                focus: card.index === 0
                kind: Button.Prominent
                tint: Theme.greenFill
                text: qsTr("Run")
                enabled: card.runnable
                remark: card.title
                onClicked: card.runRequested()
            }
        }
    }
}
