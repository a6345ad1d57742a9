// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

namespace Korvane {

/// What a click on the icon in the tray opens.
enum class PanelPlace {
    AtIcon, ///< The panel, at the icon.
    AtPointer, ///< The native menu, where the pointer is: nobody tells where the icon is.
    Nowhere, ///< The main window: the desktop places windows itself, and shows the native menu for another click.
};

/// What of these a desktop allows. `platform` is Qt's name of it; `icon` is where the icon is, empty where that is not
/// told. A client of Wayland can neither place a window nor open a menu without a window that has the keyboard.
PanelPlace panelPlace(const QString& platform, const QRect& icon);

/// Where the upper left corner of a panel of this size goes, so that it hangs at the icon: below one in the upper half
/// of the screen, above one in the lower half, in the middle of it if there is room.
///
/// `available` is what bars and docks leave of the screen; the panel never reaches over its edges, except to the right
/// and below when it is larger. All in the same coordinates.
QPoint panelPosition(const QRect& icon, const QSize& panel, const QRect& available);

} // namespace Korvane
