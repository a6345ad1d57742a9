// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A text in one of the sizes of the type scale.
Text {
    id: label

    enum Style {
        LargeTitle,
        Title,
        Title2,
        Title3,
        Headline,
        Body,
        Callout,
        Caption
    }

    property int style: Label.Body

    function pixels(style: int): int {
        switch (style) {
        case Label.LargeTitle:
            return Theme.largeTitle;
        case Label.Title:
            return Theme.title;
        case Label.Title2:
            return Theme.title2;
        case Label.Title3:
            return Theme.title3;
        case Label.Callout:
            return Theme.callout;
        case Label.Caption:
            return Theme.caption;
        default:
            return Theme.body;
        }
    }

    color: Theme.label
    elide: Text.ElideRight
    textFormat: Text.PlainText
    // Columns keep their edge: by itself a name written from right to left would go to the other one.
    horizontalAlignment: Text.AlignLeft
    font.family: Theme.fontFamily
    font.pixelSize: label.pixels(label.style)
    font.weight: label.style <= Label.Title ? Font.Bold
        : label.style === Label.Title2 || label.style === Label.Headline ? Font.DemiBold : Font.Normal
    font.letterSpacing: label.style <= Label.Title ? Theme.titleTracking : 0

    Accessible.role: Accessible.StaticText
    Accessible.name: label.text
    Accessible.ignored: label.text === ""
}
