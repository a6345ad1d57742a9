// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Korvane.UI

/// The whole page: what is connected, what is on it, and the backups on this computer.
Flickable {
    id: page

    required property IOSDeviceViewModel viewModel
    required property bool shown

    /// Brings the keyboard back to the backups, one of which had it.
    function returnToBackups(): void {
        backups.takeKeyboard();
    }

    contentWidth: page.width
    contentHeight: column.implicitHeight + 2 * Theme.spacingHuge
    boundsBehavior: Flickable.StopAtBounds
    T.ScrollBar.vertical: ScrollBar { }

    FocusReveal {
        id: reveal

        page: page
    }
    // Once it has its place, which takes a frame.
    Timer {
        id: settling

        interval: Theme.layoutDelay
        onTriggered: {
            if (slot.section !== null)
                reveal.bring(slot.section.statusLine);
        }
    }
    SteadyScope {
        id: scope

        focus: true
        x: (page.width - width) / 2
        y: Theme.spacingHuge
        width: Math.min(page.width - 2 * Theme.pageMargin, Metrics.pageWidth)
        height: column.implicitHeight

        Column {
            id: column

            width: parent.width
            spacing: Theme.spacingHuge

            Column {
                width: parent.width
                spacing: Theme.spacingTiny

                Label {
                    width: parent.width
                    style: Label.LargeTitle
                    text: page.viewModel.module.title
                    Accessible.role: Accessible.Heading
                }
                Label {
                    width: parent.width
                    style: Label.Title3
                    color: Theme.secondaryLabel
                    text: page.viewModel.module.subtitle
                }
            }
            DeviceCard {
                width: parent.width
                viewModel: page.viewModel
            }
            // A section keeps its device for life, also while it is being replaced, and goes no later than the page.
            Item {
                id: slot

                property MediaSection section: null

                function renew(): void {
                    const previous = slot.section;
                    const media = page.viewModel.media;
                    slot.section = media === null ? null : sectionComponent.createObject(slot, {
                        "viewModel": media
                    }) as MediaSection;
                    if (previous !== null) {
                        // A dialog takes the keyboard with it that it has.
                        if (previous.asking)
                            scope.forceActiveFocus(Qt.OtherFocusReason);
                        previous.visible = false;
                        previous.destroy();
                    }
                }

                width: parent.width
                height: slot.section === null ? 0 : slot.section.height
                visible: slot.section !== null
                Component.onCompleted: slot.renew()

                Connections {
                    target: page.viewModel

                    function onMediaChanged(): void {
                        slot.renew();
                    }
                }
                // What is begun is told where it is seen; what has come of it, where the other still is.
                Connections {
                    target: page.viewModel.media

                    function onStatusMessageChanged(): void {
                        if (page.viewModel.media.working || reveal.sees(slot.section.statusLine))
                            settling.restart();
                    }
                }
                Component {
                    id: sectionComponent

                    MediaSection {
                        width: slot.width
                        shown: page.shown
                        tallest: Math.max(Metrics.browserLeast, page.height - Metrics.browserRest)
                    }
                }
            }
            BackupsCard {
                id: backups

                width: parent.width
                viewModel: page.viewModel
            }
        }
    }
}
