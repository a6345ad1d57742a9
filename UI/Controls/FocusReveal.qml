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

    /// Scrolls no further than to see all of a control that the keyboard led to, or of the list that a row is in; under a
    /// press nothing may move.
    function show(control: T.Control): void {
        if (control === null || !reveal.holds(control))
            return;
        const list = reveal.listWithin(control.ListView.view);
        if (!control.visualFocus && (list === null || !list.byKeyboard))
            return;
        const shown = list !== null ? list : control;
        const top = shown.mapToItem(reveal.page.contentItem, 0, 0).y - Theme.spacingHuge;
        reveal.scrollTo(top, top + shown.height + (list !== null ? list.below : 0) + 2 * Theme.spacingHuge);
    }
    /// Scrolls no further than to see all of an item of the page.
    function bring(item: Item): void {
        const top = item.mapToItem(reveal.page.contentItem, 0, 0).y - Theme.spacingHuge;
        reveal.scrollTo(top, top + item.height + 2 * Theme.spacingHuge);
    }
    /// Whether anything of an item of the page is to be seen.
    function sees(item: Item): bool {
        const top = item.mapToItem(reveal.page, 0, 0).y;
        return item.visible && top < reveal.page.height && top + item.height > 0;
    }
    /// To see what is between two heights of the page.
    function scrollTo(top: real, bottom: real): void {
        const page = reveal.page;
        const seen = Math.min(Math.max(page.contentY, bottom - page.height), top);
        const last = page.originY + page.contentHeight + page.bottomMargin - page.height;
        page.contentY = Math.max(page.originY - page.topMargin, Math.min(seen, last));
    }
    /// The list, which by itself brings the row into its own view, if it is one on the page.
    function listWithin(view: var): var {
        return view === reveal.page || view?.byKeyboard === undefined ? null : view;
    }
    function holds(item: Item): bool {
        let above = item.parent;
        while (above !== null && above !== reveal.page)
            above = above.parent;
        return above === reveal.page;
    }
}
