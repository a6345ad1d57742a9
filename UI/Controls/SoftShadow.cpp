// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Controls/SoftShadow.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace Korvane {

SoftShadow::SoftShadow(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
}

void SoftShadow::setRadius(qreal radius)
{
    m_radius = radius;
    redraw();
}

void SoftShadow::setBlur(qreal blur)
{
    m_blur = blur;
    redraw();
}

void SoftShadow::setColor(const QColor& color)
{
    m_color = color;
    redraw();
}

void SoftShadow::redraw()
{
    update();
    Q_EMIT changed();
}

// The shadow of the smallest such rectangle: its middle row and column are stretched to any size.
QImage SoftShadow::smallest(qreal density) const
{
    const qreal blur = std::max(1.0, m_blur * density);
    const qreal radius = m_radius * density;
    const int corner = static_cast<int>(std::ceil(radius + 2 * blur));
    QImage image(2 * corner + 1, 2 * corner + 1, QImage::Format_ARGB32_Premultiplied);
    const qreal centre = blur + radius;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const qreal above = centre - (std::min(y, image.height() - 1 - y) + 0.5);
        for (int x = 0; x < image.width(); ++x) {
            const qreal left = centre - (std::min(x, image.width() - 1 - x) + 0.5);
            const qreal outside = std::hypot(std::max(left, 0.0), std::max(above, 0.0));
            const qreal distance = outside + std::min(std::max(left, above), 0.0) - radius;
            // The error function is the profile of a blurred edge; two deviations fill the reach of the blur.
            const qreal strength = 0.5 * std::erfc(distance / blur * std::sqrt(2.0));
            const int alpha = static_cast<int>(std::lround(strength * m_color.alpha()));
            line[x] = qPremultiply(qRgba(m_color.red(), m_color.green(), m_color.blue(), alpha));
        }
    }
    return image;
}

void SoftShadow::paint(QPainter* painter)
{
    const qreal density = painter->device()->devicePixelRatioF();
    const QImage image = smallest(density);
    const qreal corner = (image.width() - 1) / 2.0;
    const qreal side = std::min({ corner / density, width() / 2, height() / 2 });
    const qreal used = side * density;
    // Where the three columns begin and end, in the picture and in the item; rows likewise.
    const std::array<qreal, 3> source{ 0, corner, image.width() - used };
    const std::array<qreal, 3> sourceExtent{ used, 1, used };
    const std::array<qreal, 3> across{ side, width() - 2 * side, side };
    const std::array<qreal, 3> down{ side, height() - 2 * side, side };
    qreal top = 0;
    for (std::size_t row = 0; row < 3; ++row) {
        qreal left = 0;
        for (std::size_t column = 0; column < 3; ++column) {
            const QRectF target(left, top, across[column], down[row]);
            const QRectF piece(source[column], source[row], sourceExtent[column], sourceExtent[row]);
            if (!target.isEmpty())
                painter->drawImage(target, image, piece);
            left += across[column];
        }
        top += down[row];
    }
}

} // namespace Korvane
