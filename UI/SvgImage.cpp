// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/SvgImage.h"

#include <QPainter>
#include <QSvgRenderer>

namespace Korvane {

QImage svgImage(QSvgRenderer& drawing, int pixels)
{
    if (!drawing.isValid())
        return {};
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return image;
}

} // namespace Korvane
