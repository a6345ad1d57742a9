// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A focus scope that does not lose the keyboard when what had it is disabled, hidden or gone: the scope itself has it
/// then, the control that had it last still shows the ring if it can be seen, and Tab leads on from there.
FocusScope {
    id: scope

    /// The control that Tab led to last, or that was pressed last; null before, and once it is gone.
    property Item last: null
    /// Whether the keyboard is here, and on nothing.
    readonly property bool astray: scope.focusedItem === scope

    readonly property Item focusedItem: scope.Window.activeFocusItem
    /// Whether the last one showed that it had the keyboard.
    property bool lastShowed: false
    property bool wasAstray: false

    function remember(control: T.Control): void {
        if (control === null || !(control.focusPolicy & Qt.TabFocus))
            return;
        let above = control.parent;
        while (above !== null && above !== scope)
            above = above.parent;
        if (above !== scope)
            return;
        // One that was disabled for a while looks as it did before; so does the first one.
        if (scope.wasAstray && (scope.last === null || (scope.lastShowed && control === scope.last)))
            control.focusReason = Qt.TabFocusReason;
        scope.last = control;
        scope.lastShowed = control.visualFocus;
    }
    /// Leads on from here; whether the keyboard was here, and on nothing.
    function goOn(forward: bool): bool {
        if (!scope.astray)
            return false;
        // Not "??": the compiler of Qt 6.4 makes nothing of it where there is no object.
        const from = scope.last !== null ? scope.last : scope;
        const next = from.nextItemInFocusChain(forward);
        next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
        return true;
    }

    onFocusedItemChanged: {
        scope.remember(scope.focusedItem as T.Control);
        scope.wasAstray = scope.focusedItem === scope;
    }
    Keys.onTabPressed: event => event.accepted = scope.goOn(true)
    Keys.onBacktabPressed: event => event.accepted = scope.goOn(false)

    FocusRing {
        parent: scope.last !== null ? scope.last : scope
        shown: scope.astray && scope.last !== null && scope.lastShowed
        gap: scope.last instanceof Button && (scope.last as Button).filled ? Theme.focusRingGap : 0
    }
}
