// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/ApplicationIcons.h"

#include "Platform/ApplicationIcon.h"

#include <QBuffer>
#include <QImageReader>
#include <QMutexLocker>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace Korvane {

namespace {

// Some three hundred icons of list size at double density.
constexpr int cacheBytes = 8 * 1024 * 1024;

// Wider or higher than any icon format has it; a picture that claims more is not decoded.
constexpr int largestSide = 4096;

/// Where the icon of an application is looked for: an AppImage keeps it beside itself, the others in themselves.
std::filesystem::path iconPlace(const InstalledApp& app)
{
    if (app.kind == InstalledApp::Kind::AppImage) {
        for (const ScanItem& leftover : app.leftovers) {
            if (leftover.category == "Icons")
                return leftover.url;
        }
    }
    return app.url;
}

QImage centred(const QImage& picture, int pixels)
{
    const QImage fitted = picture.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage square(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((pixels - fitted.width()) / 2, (pixels - fitted.height()) / 2, fitted);
    return square;
}

QImage drawn(QSvgRenderer& renderer, int pixels)
{
    if (!renderer.isValid())
        return {};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

/// A picture of anybody's making: null unless it is a PNG of sensible size, or a drawing.
QImage decoded(const std::string& bytes, int pixels)
{
    QByteArray data = QByteArray::fromStdString(bytes);
    if (!data.startsWith("\x89PNG")) {
        QSvgRenderer renderer(data);
        return drawn(renderer, pixels);
    }
    QBuffer buffer(&data);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    const QImage picture = reader.read();
    return picture.isNull() ? QImage() : centred(picture, pixels);
}

QImage genericIcon(int pixels)
{
    QSvgRenderer renderer(QStringLiteral(":/qt/qml/Korvane/UI/Uninstaller/GenericApplication.svg"));
    return drawn(renderer, pixels);
}

} // namespace

ApplicationIcons::ApplicationIcons()
    : m_images(cacheBytes)
{
}

void ApplicationIcons::setApps(const std::vector<InstalledApp>& apps)
{
    QHash<QString, std::filesystem::path> places;
    for (const InstalledApp& app : apps)
        places.insert(QString::fromStdString(app.id.toString()), iconPlace(app));
    const QMutexLocker lock(&m_mutex);
    m_places = std::move(places);
    m_images.clear();
}

QImage ApplicationIcons::image(const QString& appId, int pixels)
{
    pixels = std::clamp(pixels, 1, 1024);
    std::filesystem::path place;
    {
        const QMutexLocker lock(&m_mutex);
        if (const QImage* known = m_images.object({ appId, pixels }))
            return *known;
        place = m_places.value(appId);
    }
    QImage image;
    if (const auto bytes = place.empty() ? std::nullopt : applicationIcon(place, pixels))
        image = decoded(*bytes, pixels);
    if (image.isNull())
        image = genericIcon(pixels);
    const QMutexLocker lock(&m_mutex);
    if (m_places.contains(appId))
        m_images.insert({ appId, pixels }, new QImage(image), static_cast<int>(image.sizeInBytes()));
    return image;
}

} // namespace Korvane
