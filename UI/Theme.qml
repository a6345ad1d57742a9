// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick
import Korvane.UI

/// The shared look: colours, gradients, type, spacing, shapes and motion. Light and dark follow the desktop.
QtObject {
    readonly property bool dark: Appearance.dark
    readonly property bool highContrast: Appearance.highContrast

    // The platform's named colours.
    readonly property color blue: dark ? "#0a84ff" : "#007aff"
    readonly property color cyan: dark ? "#64d2ff" : "#32ade6"
    readonly property color teal: dark ? "#40c8e0" : "#30b0c7"
    readonly property color green: dark ? "#30d158" : "#34c759"
    readonly property color yellow: dark ? "#ffd60a" : "#ffcc00"
    readonly property color orange: dark ? "#ff9f0a" : "#ff9500"
    readonly property color red: dark ? "#ff453a" : "#ff3b30"
    readonly property color pink: dark ? "#ff375f" : "#ff2d55"
    readonly property color purple: dark ? "#bf5af2" : "#af52de"
    readonly property color indigo: dark ? "#5e5ce6" : "#5856d6"
    readonly property color gray: dark ? "#98989d" : "#8e8e93"

    // Text. Each reaches 4.5:1 on every background below.
    readonly property color label: dark ? "#f5f5f7" : "#1d1d1f"
    readonly property color secondaryLabel: highContrast ? label : dark ? "#bcbcc4" : "#515157"
    readonly property color tertiaryLabel: highContrast ? label : dark ? "#ababb3" : "#5e5e64"
    readonly property color linkLabel: dark ? "#5eb0ff" : "#005ecb"
    readonly property color warningLabel: dark ? "#ffb340" : "#8f4700"
    readonly property color errorLabel: dark ? "#ff8a80" : "#b3140a"
    readonly property color successLabel: dark ? "#4cd970" : "#1a6b2f"
    readonly property color onAccent: "#ffffff"

    // Backgrounds.
    readonly property color window: dark ? "#1c1c1f" : "#f6f6f8"
    readonly property color sidebar: dark ? "#252529" : "#ebebef"
    readonly property color elevated: dark ? "#2c2c31" : "#ffffff"
    readonly property color field: dark ? "#26262a" : "#ffffff"
    readonly property color scrim: dark ? "#99000000" : "#40000000"

    // Lines and states, laid over a background.
    readonly property color separator: dark ? (highContrast ? "#66ffffff" : "#1fffffff")
                                            : (highContrast ? "#66000000" : "#1a000000")
    readonly property color controlBorder: dark ? (highContrast ? "#b3ffffff" : "#33ffffff")
                                                : (highContrast ? "#b3000000" : "#2e000000")
    readonly property color checkBorder: highContrast ? label : dark ? "#80ffffff" : "#73000000"
    readonly property color controlFill: dark ? "#1fffffff" : "#ffffff"
    readonly property color hoverFill: dark ? "#14ffffff" : "#0d000000"
    readonly property color pressedFill: dark ? "#24ffffff" : "#1a000000"
    readonly property color selectionFill: dark ? "#2effffff" : "#1a000000"
    readonly property color trackFill: dark ? "#26ffffff" : "#1a000000"
    readonly property color capsuleFill: dark ? "#1fffffff" : "#12000000"
    readonly property color focusRing: Qt.alpha(blue, dark ? 0.75 : 0.6)
    readonly property color cardBorder: dark ? "#1affffff" : "#12000000"
    readonly property color shadow: dark ? "#66000000" : "#24000000"

    // Fills under white text, strong enough for it.
    readonly property color prominentFill: "#0a6fe8"
    readonly property color destructiveFill: "#d92d20"
    readonly property color greenFill: "#1b7f37"
    /// Under the white symbol of a tile, where its gradient thins out.
    function tileBase(accent: color): color {
        return dark ? "#3a3a40" : Qt.darker(accent, 1.4);
    }

    // States of such fills, laid over them.
    readonly property color filledHoverFill: "#1affffff"
    readonly property color filledPressedFill: "#2e000000"

    // A switch.
    readonly property color switchOffFill: dark ? "#4dffffff" : "#8a8a90"
    readonly property color knob: "#ffffff"
    readonly property color pressedKnob: "#ececf0"

    /// From cyan to blue.
    readonly property var heroGradient: [cyan, blue]
    /// A breath of colour behind scrolling pages.
    readonly property var windowBackground: [Qt.alpha(blue, 0.07), "transparent", Qt.alpha(purple, 0.06)]
    /// The translucent material of cards and lists.
    readonly property color cardBackground: dark ? "#12ffffff" : "#bfffffff"

    /// From the colour to the same colour at 55 percent.
    function accentGradient(colour: color): var {
        return [colour, Qt.alpha(colour, 0.55)];
    }

    /// The colour that a module is shown in.
    function accent(accent: int): color {
        switch (accent) {
        case ModuleViewModel.Cyan:
            return cyan;
        case ModuleViewModel.Orange:
            return orange;
        case ModuleViewModel.Red:
            return red;
        case ModuleViewModel.Green:
            return green;
        case ModuleViewModel.Purple:
            return purple;
        default:
            return blue;
        }
    }

    // Type, sizes in pixels.
    readonly property string fontFamily: Appearance.fontFamily
    readonly property int largeTitle: 28
    readonly property int title: 22
    readonly property int title2: 18
    readonly property int title3: 16
    readonly property int body: 14
    readonly property int callout: 13
    readonly property int caption: 12

    // Spacing, in steps of a grid of eight.
    readonly property int spacingTiny: 4
    readonly property int spacing: 8
    readonly property int spacingMedium: 12
    readonly property int spacingLarge: 16
    readonly property int spacingHuge: 24
    readonly property int pageMargin: 32

    // Shapes.
    readonly property int controlHeight: 32
    readonly property int largeControlHeight: 44
    readonly property int radiusSmall: 6
    readonly property int radius: 8
    readonly property int radiusLarge: 12
    readonly property int radiusCard: 16

    // Motion, in milliseconds; none when the desktop asks for none.
    readonly property bool animated: !Appearance.reducedMotion
    readonly property int durationShort: animated ? 150 : 0
    readonly property int durationLong: animated ? 250 : 0
}
