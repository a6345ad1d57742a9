// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

namespace Korvane {

/// Relative luminance as the Web Content Accessibility Guidelines 2.1 define it.
inline double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Their contrast, from 1 to 21.
inline double contrast(const QColor& one, const QColor& other)
{
    const double brighter = std::max(luminance(one), luminance(other));
    const double darker = std::min(luminance(one), luminance(other));
    return (brighter + 0.05) / (darker + 0.05);
}

/// What is seen of a translucent colour on an opaque one.
inline QColor over(const QColor& top, const QColor& bottom)
{
    const auto mixed = [&](float above, float below) { return above * top.alphaF() + below * (1 - top.alphaF()); };
    return QColor::fromRgbF(
        mixed(top.redF(), bottom.redF()), mixed(top.greenF(), bottom.greenF()), mixed(top.blueF(), bottom.blueF()));
}

} // namespace Korvane
