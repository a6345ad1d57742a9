// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/PanelPosition.h"

#include <algorithm>

namespace Korvane {

namespace {

/// Between the icon and the panel, and between the panel and the edges of the screen.
constexpr int gap = 6;

int between(int wanted, int first, int last) { return std::max(first, std::min(wanted, last)); }

} // namespace

PanelPlace panelPlace(const QString& platform, const QRect& icon)
{
    if (platform != QLatin1String("xcb") && platform != QLatin1String("cocoa"))
        return PanelPlace::Nowhere;
    return icon.isEmpty() ? PanelPlace::AtPointer : PanelPlace::AtIcon;
}

QPoint panelPosition(const QRect& icon, const QSize& panel, const QRect& available)
{
    const bool isBelow = icon.center().y() < available.center().y();
    const int x = icon.center().x() - panel.width() / 2;
    const int y = isBelow ? icon.bottom() + 1 + gap : icon.top() - gap - panel.height();
    return { between(x, available.left() + gap, available.right() + 1 - gap - panel.width()),
        between(y, available.top() + gap, available.bottom() + 1 - gap - panel.height()) };
}

} // namespace Korvane
