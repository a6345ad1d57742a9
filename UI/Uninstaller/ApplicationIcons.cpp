// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/ApplicationIcons.h"

#include "Platform/ApplicationIcon.h"
#include "UI/SvgImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QMutexLocker>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace Korvane {

namespace {

// Some three hundred icons of list size at double density.
constexpr int cacheBytes = 8 * 1024 * 1024;

// Wider or higher than any icon format has it; a picture that claims more is not decoded.
constexpr int largestSide = 4096;

/// Where the icon of an application is looked for: an AppImage keeps several beside itself, the others in themselves.
std::vector<std::filesystem::path> iconPlaces(const InstalledApp& app)
{
    if (app.kind != InstalledApp::Kind::AppImage)
        return { app.url };
    std::vector<std::filesystem::path> places;
    for (const ScanItem& leftover : app.leftovers) {
        if (leftover.category == "Icons")
            places.push_back(leftover.url);
    }
    return places;
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

/// A picture of anybody's making, not yet decoded.
struct Candidate {
    QByteArray data;
    int side = 0; ///< Of a PNG its width; a drawing fits every size.
};

/// Nothing unless it is a PNG of sensible size, or a drawing.
std::optional<Candidate> candidate(const std::string& bytes)
{
    Candidate candidate{ QByteArray::fromStdString(bytes), std::numeric_limits<int>::max() };
    if (!candidate.data.startsWith("\x89PNG"))
        return candidate;
    QBuffer buffer(&candidate.data);
    const QSize size = QImageReader(&buffer, "png").size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return std::nullopt;
    candidate.side = size.width();
    return candidate;
}

QImage decoded(const Candidate& candidate, int pixels)
{
    if (!candidate.data.startsWith("\x89PNG")) {
        QSvgRenderer renderer(candidate.data);
        return svgImage(renderer, pixels);
    }
    const QImage picture = QImage::fromData(candidate.data, "png");
    return picture.isNull() ? QImage() : centred(picture, pixels);
}

/// Of what lies at these places the smallest that is wide enough, else the widest; null when there is none.
QImage iconAt(const std::vector<std::filesystem::path>& places, int pixels)
{
    std::vector<Candidate> candidates;
    for (const auto& place : places) {
        if (const auto bytes = applicationIcon(place, pixels)) {
            if (auto found = candidate(*bytes))
                candidates.push_back(std::move(*found));
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(), [pixels](const Candidate& left, const Candidate& right) {
        const bool isLeftEnough = left.side >= pixels;
        if (isLeftEnough != (right.side >= pixels))
            return isLeftEnough;
        return isLeftEnough ? left.side < right.side : left.side > right.side;
    });
    for (const Candidate& candidate : candidates) {
        if (const QImage image = decoded(candidate, pixels); !image.isNull())
            return image;
    }
    return {};
}

QImage genericIcon(int pixels)
{
    QSvgRenderer renderer(QStringLiteral(":/qt/qml/Korvane/UI/Uninstaller/GenericApplication.svg"));
    return svgImage(renderer, pixels);
}

} // namespace

ApplicationIcons::ApplicationIcons()
    : m_images(cacheBytes)
{
}

void ApplicationIcons::setApps(const std::vector<InstalledApp>& apps)
{
    QHash<QString, std::vector<std::filesystem::path>> places;
    for (const InstalledApp& app : apps)
        places.insert(QString::fromStdString(app.id.toString()), iconPlaces(app));
    const QMutexLocker lock(&m_mutex);
    m_places = std::move(places);
    m_images.clear();
}

QImage ApplicationIcons::image(const QString& appId, int pixels)
{
    pixels = std::clamp(pixels, 1, 1024);
    std::vector<std::filesystem::path> places;
    {
        const QMutexLocker lock(&m_mutex);
        if (const QImage* known = m_images.object({ appId, pixels }))
            return *known;
        places = m_places.value(appId);
    }
    QImage image = iconAt(places, pixels);
    if (image.isNull())
        image = genericIcon(pixels);
    const QMutexLocker lock(&m_mutex);
    if (m_places.contains(appId))
        m_images.insert({ appId, pixels }, new QImage(image), static_cast<int>(image.sizeInBytes()));
    return image;
}

} // namespace Korvane
