// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// A line between groups of commands in a `Menu`.
T.MenuSeparator {
    implicitWidth: 100
    implicitHeight: 2 * padding + Theme.hairline
    padding: Theme.spacingTiny

    contentItem: Separator { }
}
