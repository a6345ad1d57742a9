// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Korvane.UI

/// A command of the panel in the menu bar. Arrow keys lead from one to the next, and round.
T.AbstractButton {
    id: row

    /// The name of the symbol before the text.
    required property string symbol
    property color accent: Theme.blue

    /// The first key shows where the keyboard is, each further one moves on.
    function step(forward: bool): void {
        const reason = forward ? Qt.TabFocusReason : Qt.BacktabFocusReason;
        if (row.visualFocus)
            row.nextItemInFocusChain(forward).forceActiveFocus(reason);
        else
            row.focusReason = reason;
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.panelRowHeight
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: row.enabled ? 1 : Theme.disabledOpacity
    Layout.fillWidth: true
    Keys.onDownPressed: row.step(true)
    Keys.onUpPressed: row.step(false)
    Keys.onReturnPressed: row.clicked()
    Keys.onEnterPressed: row.clicked()
    Accessible.name: row.text
    Accessible.onPressAction: {
        if (row.enabled)
            row.clicked();
    }

    contentItem: RowLayout {
        spacing: Theme.spacingMedium

        Symbol {
            objectName: "symbol"
            name: row.symbol
            size: Metrics.symbolMedium
            color: row.accent
        }
        Label {
            Layout.fillWidth: true
            text: row.text
            font.weight: Font.Medium
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Theme.radius
        color: row.down ? Theme.pressedFill : row.hovered || row.visualFocus ? Theme.hoverFill : "transparent"

        FocusRing {
            gap: -Theme.focusRingWidth
            around: parent.radius
            shown: row.visualFocus
        }
    }
}
