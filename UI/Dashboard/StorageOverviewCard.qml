// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// How full the startup disk is, and the button that makes room.
Card {
    id: card

    required property DashboardViewModel viewModel
    /// Whether the card is on screen; the disk is measured whenever it comes there.
    required property bool shown

    implicitHeight: Metrics.storageCardHeight

    onShownChanged: {
        if (card.shown)
            card.viewModel.measure();
    }

    RowLayout {
        anchors.fill: parent
        anchors.margins: Theme.spacingHuge
        spacing: Theme.spacingLarge

        IconTile {
            size: Metrics.moduleTile
            symbol: "internaldrive.fill"
            accent: Theme.blue
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spacing

            Label {
                Layout.fillWidth: true
                style: Label.Title3
                font.weight: Font.DemiBold
                text: qsTr("Startup Disk")
                Accessible.role: Accessible.Heading
            }
            ProgressBar {
                Layout.fillWidth: true
                value: card.viewModel.usedFraction
                tint: card.viewModel.nearlyFull ? Theme.orange : Theme.blue
                Accessible.name: qsTr("Used space of the startup disk")
                Accessible.description: card.viewModel.capacityText
            }
            StorageCaption {
                Layout.fillWidth: true
                tint: card.viewModel.nearlyFull ? Theme.orange : Theme.blue
                text: card.viewModel.capacityText
                used: card.viewModel.usedText
                free: card.viewModel.freeText
            }
        }
        Button {
            Layout.leftMargin: Theme.spacing
            kind: Button.Prominent
            large: true
            symbol: "sparkles"
            text: qsTr("Smart Scan")
            onClicked: card.viewModel.smartScan()
        }
    }
}
