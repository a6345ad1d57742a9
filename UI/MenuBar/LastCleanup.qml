// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Korvane.UI

/// What the last cleanup freed, and how long ago.
RowLayout {
    id: line

    required property MenuBarViewModel viewModel

    spacing: Theme.spacingMedium

    IconTile {
        size: Metrics.rowIcon
        symbol: "sparkles"
        gradient: Theme.heroGradient
    }
    ColumnLayout {
        spacing: Theme.spacingHair

        Label {
            Layout.fillWidth: true
            style: Label.Headline
            text: line.viewModel.lastCleanup
            Accessible.role: Accessible.Heading
        }
        Label {
            Layout.fillWidth: true
            style: Label.Callout
            color: Theme.secondaryLabel
            text: line.viewModel.lastCleanupMoment
        }
    }
}
