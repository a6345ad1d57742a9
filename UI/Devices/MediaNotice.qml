// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// Says why there is nothing to browse: what went wrong, or that there is nothing.
Item {
    id: notice

    /// Whether something went wrong, and what.
    required property bool failed
    required property string failure

    Symbol {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: notice.failed
        name: "exclamationmark.triangle.fill"
        size: Metrics.symbolMedium
        color: Theme.orange
    }
    Label {
        anchors.left: notice.failed ? sign.right : parent.left
        anchors.leftMargin: notice.failed ? Theme.spacingMedium : 0
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.Wrap
        maximumLineCount: 2
        color: notice.failed ? Theme.warningLabel : Theme.secondaryLabel
        text: notice.failed ? ShownText.isolated(notice.failure) : qsTr("No media found in the camera roll.")
        Accessible.role: notice.failed ? Accessible.AlertMessage : Accessible.StaticText
    }
    ToolTipArea {
        text: notice.failure
    }
}
