// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace Korvane {

/// Where the upper left corner of a panel of this size goes, so that it hangs at the icon: below one in the upper half
/// of the screen, above one in the lower half, in the middle of it if there is room.
///
/// `available` is what bars and docks leave of the screen; the panel never reaches over its edges, except to the right
/// and below when it is larger. All in the same coordinates.
QPoint panelPosition(const QRect& icon, const QSize& panel, const QRect& available);

} // namespace Korvane
