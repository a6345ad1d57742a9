// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A push button with a text, a symbol, or both.
T.Button {
    id: button

    enum Kind {
        Plain,
        Prominent,
        Destructive,
        Borderless
    }

    property int kind: Button.Plain
    property bool large: false
    /// The name of the symbol before the text; empty for none.
    property string symbol: ""
    /// What a screen reader says besides the name.
    property string remark: ""
    /// What a prominent button is filled with; white must be readable on it.
    property color tint: Theme.prominentFill

    readonly property bool filled: button.kind === Button.Prominent || button.kind === Button.Destructive
    property color ink: button.filled ? Theme.onAccent
        : button.kind === Button.Borderless ? Theme.linkLabel : Theme.label
    readonly property color fill: {
        switch (button.kind) {
        case Button.Prominent:
            return button.tint;
        case Button.Destructive:
            return Theme.destructiveFill;
        case Button.Borderless:
            return "transparent";
        default:
            return Theme.controlFill;
        }
    }

    /// What is laid over the fill while the pointer is there, or presses.
    readonly property color stateFill: button.filled ? (button.down ? Theme.filledPressedFill : Theme.filledHoverFill)
                                                     : (button.down ? Theme.pressedFill : Theme.hoverFill)

    implicitHeight: button.large ? Metrics.largeControlHeight : Metrics.controlHeight
    implicitWidth: Math.max(button.implicitHeight, implicitContentWidth + leftPadding + rightPadding)
    leftPadding: button.text === "" ? 0 : button.large ? Theme.spacingHuge : Theme.spacingMedium
    rightPadding: leftPadding
    opacity: button.enabled ? 1 : Theme.disabledOpacity
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    font.family: Theme.fontFamily
    font.pixelSize: button.large ? Theme.title3 : Theme.body
    font.weight: button.large || button.filled ? Font.DemiBold : Font.Medium

    Keys.onReturnPressed: button.clicked()
    Keys.onEnterPressed: button.clicked()
    Accessible.name: button.text
    // By itself Qt does not tell that it cannot be pressed now.
    Accessible.description: button.enabled ? button.remark
        : button.remark === "" ? qsTr("Unavailable") : qsTr("%1, unavailable").arg(button.remark)
    Accessible.onPressAction: {
        if (button.enabled)
            button.clicked();
    }

    contentItem: Item {
        implicitWidth: children[0].implicitWidth
        implicitHeight: children[0].implicitHeight

        Row {
            anchors.centerIn: parent
            spacing: Theme.spacing

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.symbol !== ""
                name: button.symbol
                size: button.large ? Metrics.symbolMedium : Metrics.symbolSmall
                color: button.ink
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.text !== ""
                text: button.text
                textFormat: Text.PlainText
                font: button.font
                color: button.ink
                Accessible.ignored: true
            }
        }
    }

    background: Rectangle {
        radius: button.large ? Theme.radiusLarge : Theme.radius
        color: button.fill
        border.width: button.kind === Button.Plain ? Theme.hairline : 0
        border.color: Theme.controlBorder

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.stateFill
            opacity: button.down || (button.hovered && button.enabled) ? 1 : 0

            Behavior on opacity {
                NumberAnimation {
                    duration: Theme.durationShort
                }
            }
        }
        FocusRing {
            shown: button.visualFocus
            gap: button.filled ? Theme.focusRingGap : 0
            around: parent.radius
        }
    }
}
