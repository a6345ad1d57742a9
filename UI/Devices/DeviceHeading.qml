// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// What a part of the page is, over what is to be known of it, with the button that looks at it afresh if it has one.
Item {
    id: heading

    required property string title
    property string subtitle: ""
    property bool refreshable: false
    property bool refreshEnabled: true

    readonly property Item refreshButton: refresh

    signal refreshRequested

    implicitHeight: texts.implicitHeight

    Column {
        id: texts

        anchors.left: parent.left
        anchors.right: heading.refreshable ? refresh.left : parent.right
        anchors.rightMargin: Theme.spacing
        spacing: Theme.spacingHair

        Label {
            width: parent.width
            height: Math.max(implicitHeight, heading.refreshable ? Metrics.controlHeight : 0)
            verticalAlignment: Text.AlignVCenter
            style: Label.Title3
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
            text: ShownText.isolated(heading.title)
            Accessible.role: Accessible.Heading
            Accessible.name: heading.title
        }
        Label {
            width: parent.width
            visible: heading.subtitle !== ""
            style: Label.Callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            text: heading.subtitle
        }
    }
    Button {
        id: refresh

        anchors.right: parent.right
        visible: heading.refreshable
        enabled: heading.refreshEnabled
        focus: heading.refreshable
        symbol: "arrow.clockwise"
        text: qsTr("Refresh")
        remark: heading.title
        onClicked: heading.refreshRequested()
    }
}
