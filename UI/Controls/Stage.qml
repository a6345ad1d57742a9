// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

/// Where a screen shows one view after the other, each made afresh.
FocusScope {
    id: stage

    property Item current: null
    /// Whether the last control that had the keyboard showed it.
    property bool byKeyboard: false

    /// Brings on a view in place of the one before, and the keyboard with it if the screen had that.
    function show(view: Component, hadFocus: bool): void {
        const focused = stage.T.ApplicationWindow.activeFocusControl as T.Control;
        // A view without controls has none, and changes nothing.
        if (focused !== null)
            stage.byKeyboard = focused.visualFocus;
        const previous = stage.current;
        stage.current = view.createObject(stage) as Item;
        if (hadFocus)
            stage.current.forceActiveFocus(stage.byKeyboard ? Qt.TabFocusReason : Qt.OtherFocusReason);
        else
            // No item of a window in the background has the keyboard: it comes back to where the scopes lead.
            stage.current.focus = true;
        if (previous !== null) {
            previous.visible = false;
            previous.destroy();
        }
    }
}
