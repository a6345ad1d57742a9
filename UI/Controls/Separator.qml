// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// A hairline between rows or areas.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.separator
}
