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
    readonly property color secondaryLabel: highContrast ? label : dark ? "#cacad2" : "#515157"
    readonly property color tertiaryLabel: highContrast ? label : dark ? "#bcbcc4" : "#58585e"
    readonly property color linkLabel: dark ? "#78beff" : "#0050b0"
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
    readonly property color separator: dark ? (highContrast ? "#80ffffff" : "#1fffffff")
                                            : (highContrast ? "#80000000" : "#1a000000")
    readonly property color controlBorder: dark ? (highContrast ? "#b3ffffff" : "#33ffffff")
                                                : (highContrast ? "#b3000000" : "#2e000000")
    readonly property color checkBorder: highContrast ? label : dark ? "#8cffffff" : "#8c000000"
    /// Around what floats in a window of its own, where a color that is not opaque would stand on black.
    readonly property color elevatedBorder: Qt.tint(elevated, controlBorder)
    readonly property color controlFill: dark ? "#1fffffff" : "#ffffff"
    readonly property color hoverFill: dark ? "#12ffffff" : "#0d000000"
    readonly property color pressedFill: dark ? "#1affffff" : "#1a000000"
    readonly property color selectionFill: dark ? "#1fffffff" : "#1a000000"
    readonly property color trackFill: dark ? "#26ffffff" : "#1a000000"
    readonly property color capsuleFill: dark ? "#1fffffff" : "#12000000"
    readonly property color focusRing: dark ? "#3d9dff" : blue
    readonly property color cardBorder: highContrast ? controlBorder : dark ? "#1affffff" : "#12000000"
    readonly property color shadow: dark ? "#66000000" : "#24000000"

    // Fills under white text, strong enough for it.
    readonly property color prominentFill: "#0a6fe8"
    readonly property color destructiveFill: "#d92d20"
    readonly property color greenFill: "#1b7f37"
    /// Under the white symbol of a tile, where its gradient thins out.
    function tileBase(accent: color): color {
        return dark ? "#3a3a40" : Qt.darker(accent, 1.4);
    }

    /// The same of a mark in its box and of a switch, which stand out from what they lie on.
    readonly property color checkedFill: dark ? "#1a7af0" : prominentFill

    // States of such fills, laid over them.
    readonly property color filledHoverFill: "#1a000000"
    readonly property color filledPressedFill: "#33000000"

    // A switch.
    readonly property color switchOffFill: dark ? "#66ffffff" : "#808086"
    readonly property color knob: "#ffffff"
    readonly property color pressedKnob: "#f2f2f5"

    /// From cyan to blue.
    readonly property var heroGradient: [cyan, blue]
    /// A breath of colour behind scrolling pages.
    readonly property var windowBackground: [Qt.alpha(blue, 0.07), "transparent", Qt.alpha(purple, 0.06)]
    /// The translucent material of cards and lists.
    readonly property color cardBackground: dark ? "#12ffffff" : "#bfffffff"
    /// The same, opaque: for what lies over other rows of a card.
    readonly property color card: Qt.tint(window, cardBackground)
    readonly property color warningFill: Qt.alpha(orange, dark ? 0.16 : 0.14)

    /// The light around a tile.
    function glow(accent: color): color {
        return Qt.alpha(accent, 0.35);
    }
    /// A ring that spreads from a symbol, and its line, as strong as it still is: from 1 to 0.
    function pulseFill(accent: color, strength: real): color {
        return Qt.alpha(accent, 0.16 * strength);
    }
    function pulseLine(accent: color, strength: real): color {
        return Qt.alpha(accent, 0.55 * strength);
    }

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

    /// The colour of a category among others, counted from 0; gray for those that have none of their own.
    function category(shade: int): color {
        const shades = [blue, orange, purple, green, pink, teal, indigo];
        return shade < 0 ? gray : shades[shade % shades.length];
    }

    // Type, sizes in pixels.
    readonly property string fontFamily: Appearance.fontFamily
    readonly property int figure: 44
    readonly property int largeTitle: 28
    readonly property int title: 22
    readonly property int title2: 18
    readonly property int title3: 16
    readonly property int body: 14
    readonly property int callout: 13
    readonly property int caption: 12
    readonly property int lineHeight: 20
    readonly property real titleTracking: -0.3
    readonly property real figureTracking: -1

    // Spacing, in steps of a grid of eight, and halves of it within a control.
    readonly property int spacingHair: 2
    readonly property int spacingTiny: 4
    readonly property int spacing: 8
    readonly property int spacingMedium: 12
    readonly property int spacingLarge: 16
    readonly property int spacingHuge: 24
    readonly property int pageMargin: 32

    // Shapes.
    readonly property int hairline: 1
    readonly property int radiusTiny: 4
    readonly property int radiusSmall: 6
    readonly property int radius: 8
    readonly property int radiusLarge: 12
    readonly property int radiusCard: 16
    readonly property int tileRadius: 18
    /// Parts of a tile's size: its corner, its symbol.
    readonly property real tileRounding: 0.28
    readonly property real tileSymbol: 0.54
    readonly property int cardShadow: 12
    readonly property int dialogShadow: 24
    readonly property int tileGlow: 16
    readonly property int heroGlow: 28

    // The keyboard's place: the ring around a control, and the thinner one within a row.
    readonly property int focusRingWidth: 3
    readonly property int focusRingGap: 2
    readonly property int rowRing: 2

    // How much is left of what is disabled, at rest, or the oldest of a spinner's spokes.
    readonly property real disabledOpacity: 0.45
    readonly property real restingOpacity: 0.45
    readonly property real faintOpacity: 0.15

    // Motion, in milliseconds; none when the desktop asks for none.
    readonly property bool animated: !Appearance.reducedMotion
    readonly property int durationShort: animated ? 150 : 0
    readonly property int durationLong: animated ? 250 : 0
    readonly property real enteringScale: 0.96
    readonly property int hoverGrowth: 3
    /// The beat of what is under way, which is no transition.
    readonly property int pulsePeriod: 2400
    readonly property int spinnerStep: 80
    readonly property int toolTipDelay: 600
    /// What is laid out anew has its place by then.
    readonly property int layoutDelay: 50
}
