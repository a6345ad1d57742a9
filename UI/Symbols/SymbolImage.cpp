// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Symbols/SymbolImage.h"

#include "UI/SvgImage.h"

#include <QCache>
#include <QDir>
#include <QFile>
#include <QSvgRenderer>

namespace Korvane {

namespace {

const auto folder = QStringLiteral(":/qt/qml/Korvane/UI/Symbols/");
const auto suffix = QStringLiteral(".svg");

// Some hundred symbols of list size.
constexpr int cacheBytes = 2 * 1024 * 1024;

/// The strength of the tint at each pixel: opaque black gives all of it, white none.
int strength(QRgb premultiplied) { return qAlpha(premultiplied) - qRed(premultiplied); }

QImage tinted(QImage drawing, const QColor& color)
{
    const QRgb tint = color.rgba();
    for (int y = 0; y < drawing.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(drawing.scanLine(y));
        for (int x = 0; x < drawing.width(); ++x) {
            const int alpha = strength(line[x]) * qAlpha(tint) / 255;
            line[x] = qPremultiply(qRgba(qRed(tint), qGreen(tint), qBlue(tint), alpha));
        }
    }
    return drawing;
}

QImage drawn(const QString& name, int pixels)
{
    QFile file(folder + name + suffix);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSvgRenderer renderer(file.readAll());
    return svgImage(renderer, pixels);
}

} // namespace

QImage symbolImage(const QString& name, int pixels, const QColor& color)
{
    static QCache<QString, QImage> cache(cacheBytes);
    if (name.isEmpty() || pixels <= 0)
        return {};
    const QString key = QStringLiteral("%1/%2/%3").arg(name).arg(pixels).arg(color.rgba(), 8, 16);
    if (const QImage* known = cache.object(key))
        return *known;
    const QImage image = drawn(name, pixels);
    if (image.isNull())
        return {};
    const QImage result = tinted(image, color);
    cache.insert(key, new QImage(result), static_cast<int>(result.sizeInBytes()));
    return result;
}

QStringList symbolNames()
{
    QStringList names = QDir(folder).entryList({ u'*' + suffix }, QDir::Files, QDir::Name);
    for (QString& name : names)
        name.chop(suffix.size());
    return names;
}

} // namespace Korvane
