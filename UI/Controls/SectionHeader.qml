// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The heading above a group of rows.
Label {
    id: header

    style: Label.Caption
    font.weight: Font.DemiBold
    color: Theme.tertiaryLabel
    Accessible.role: Accessible.Heading
}
