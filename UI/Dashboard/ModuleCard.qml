// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// One module as a card; a click anywhere on it opens the module.
T.AbstractButton {
    id: card

    required property ModuleViewModel module

    /// How far the card has grown under the pointer, on each side; drawn larger, not scaled, so that it stays sharp.
    property real growth: card.hovered ? Theme.hoverGrowth : 0

    implicitHeight: Metrics.moduleCardHeight
    topInset: -card.growth
    bottomInset: -card.growth
    leftInset: -card.growth
    rightInset: -card.growth
    padding: Theme.spacingLarge
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    text: card.module.title
    Keys.onReturnPressed: card.clicked()
    Keys.onEnterPressed: card.clicked()
    Accessible.name: card.module.title
    Accessible.description: card.module.subtitle
    Accessible.onPressAction: card.clicked()

    Behavior on growth {
        NumberAnimation {
            duration: Theme.durationShort
            easing.type: Easing.OutCubic
        }
    }

    contentItem: Column {
        IconTile {
            anchors.left: parent.left
            size: Metrics.moduleTile
            symbol: card.module.symbol
            accent: Theme.accent(card.module.accent)
        }
        Label {
            topPadding: Theme.spacingMedium
            width: parent.width
            style: Label.Title3
            font.weight: Font.DemiBold
            // A long name in another language becomes a little smaller before it is cut.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.body
            text: card.module.title
            Accessible.ignored: true
        }
        Label {
            topPadding: Theme.spacingTiny
            width: parent.width
            style: Label.Callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: card.module.subtitle
            Accessible.ignored: true
        }
    }

    background: Card {
        Rectangle {
            anchors.fill: parent
            radius: Theme.radiusCard
            color: card.down ? Theme.pressedFill : Theme.hoverFill
            visible: card.down || (card.hovered && Theme.dark)
        }
        FocusRing {
            shown: card.visualFocus
            around: Theme.radiusCard
        }
    }
}
