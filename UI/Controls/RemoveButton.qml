// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The button in a row that removes what the row stands for: a symbol alone.
Button {
    id: button

    kind: Button.Borderless
    symbol: "trash"
    // Where what lies under it darkens twice, the platform's red is too weak.
    ink: button.hovered || button.down ? Theme.errorLabel : Theme.red
    // The row has the keyboard, and does the same.
    focusPolicy: Qt.NoFocus
}
