// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Says why there is nothing here.
Column {
    id: empty

    required property string symbol
    required property string title
    required property string description

    spacing: Theme.spacing

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: empty.symbol
        size: Metrics.emptySymbol
        color: Theme.tertiaryLabel
    }
    Label {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        style: Label.Title2
        text: empty.title
        Accessible.role: Accessible.Heading
    }
    Label {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        color: Theme.secondaryLabel
        text: empty.description
    }
}
