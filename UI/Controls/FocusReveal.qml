// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// Keeps what the keyboard acts on in view of a page that scrolls. A child of the page.
Item {
    id: reveal

    required property Flickable page

    readonly property Item focusedItem: reveal.Window.activeFocusItem

    onFocusedItemChanged: reveal.show(reveal.focusedItem as T.Control)

    /// Scrolls no further than to see all of a control that the keyboard led to; under a press nothing may move.
    function show(control: T.Control): void {
        if (control === null || !control.visualFocus || !reveal.holds(control))
            return;
        const page = reveal.page;
        const top = control.mapToItem(page.contentItem, 0, 0).y - Theme.spacingHuge;
        const bottom = top + control.height + 2 * Theme.spacingHuge;
        const seen = Math.min(Math.max(page.contentY, bottom - page.height), top);
        const last = page.originY + page.contentHeight + page.bottomMargin - page.height;
        page.contentY = Math.max(page.originY - page.topMargin, Math.min(seen, last));
    }
    function holds(item: Item): bool {
        let above = item.parent;
        while (above !== null && above !== reveal.page)
            above = above.parent;
        return above === reveal.page;
    }
}
