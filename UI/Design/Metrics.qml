// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

/// The sizes of what screens are made of, in pixels: windows, columns, rows, tiles and symbols.
QtObject {
    // Windows.
    readonly property int windowWidth: 1080
    readonly property int windowHeight: 700
    readonly property int minimumWindowWidth: 960
    readonly property int minimumWindowHeight: 620
    readonly property int settingsWidth: 520
    readonly property int settingsHeight: 344
    readonly property int dialogWidth: 400
    readonly property int panelWidth: 264
    readonly property int widestPanel: 420

    // Columns. However wide the window, no line is longer than the eye follows.
    readonly property int sidebarWidth: 232
    readonly property int pageWidth: 1120
    readonly property int tableWidth: 1440
    readonly property int textWidth: 560
    readonly property int noteWidth: 360
    readonly property int toolTipWidth: 480
    readonly property int actionWidth: 200
    /// How much of a row belongs to the name.
    readonly property real nameColumn: 0.5
    readonly property int sizeColumn: 84
    /// The list beside the detail of what is chosen in it.
    function listPane(width: real): real {
        return Math.max(288, Math.min(384, width * 0.38));
    }

    // Controls.
    readonly property int controlHeight: 32
    readonly property int largeControlHeight: 44
    readonly property int checkBoxSize: 18
    readonly property int switchWidth: 40
    readonly property int switchHeight: 24
    readonly property int switchGap: 2
    readonly property int scrollBarWidth: 12
    readonly property int scrollBarThickness: 6
    readonly property int capsuleHeight: 22
    readonly property int barHeight: 8
    readonly property int shareBarHeight: 12
    readonly property int dot: 10
    readonly property int legendName: 160

    // Rows.
    readonly property int rowHeight: 40
    readonly property int headingHeight: 44
    readonly property int tallRowHeight: 56
    readonly property int deviceRowHeight: 104
    readonly property int sidebarRowHeight: 36
    readonly property int panelRowHeight: 36
    readonly property int footerHeight: 76
    /// Where the box of a row stands, and the text after it.
    readonly property int rowInset: 20
    readonly property int rowTextInset: 52
    readonly property int sidebarTextInset: 40
    /// The same in a tree: of a folder, and of a file within it.
    readonly property int treeBoxInset: 44
    readonly property int treeFolderInset: 76
    readonly property int treeFileBoxInset: 80
    readonly property int treeFileInset: 112

    // Symbols and pictures.
    readonly property int symbolSmall: 16
    readonly property int symbolMedium: 20
    readonly property int symbolLarge: 28
    readonly property int symbolHuge: 40
    readonly property int emptySymbol: 48
    readonly property int outcomeSymbol: 104
    readonly property int outcomeSymbolSmall: 64
    readonly property int rowIcon: 36
    readonly property int detailIcon: 72
    readonly property int spinnerSmall: 24
    readonly property int spinnerLarge: 56

    // Tiles.
    readonly property int greetingTile: 64
    readonly property int moduleTile: 60
    readonly property int aboutTile: 76
    readonly property int heroTile: 112
    readonly property int dialogTile: 56
    readonly property int pulseCore: 96
    readonly property int pulseSize: 220

    // Cards.
    readonly property int moduleCardWidth: 196
    readonly property int taskCardWidth: 216
    readonly property int moduleCardHeight: 160
    readonly property int storageCardHeight: 124
    /// The list of a camera roll is at least so high, and leaves so much of the page to the rest.
    readonly property int browserLeast: 320
    readonly property int browserRest: 440
}
