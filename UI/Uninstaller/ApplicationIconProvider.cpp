// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/ApplicationIconProvider.h"

#include <QQuickTextureFactory>
#include <QRunnable>

#include <atomic>
#include <utility>

namespace Korvane {

namespace {

constexpr int defaultPixels = 64;

/// One icon on its way. The pool destroys it once it has run.
class IconLoad : public QObject, public QRunnable {
    Q_OBJECT

public:
    IconLoad(std::shared_ptr<ApplicationIcons> icons, QString appId, int pixels,
        std::shared_ptr<const std::atomic<bool>> isCancelled)
        : m_icons(std::move(icons))
        , m_appId(std::move(appId))
        , m_pixels(pixels)
        , m_isCancelled(std::move(isCancelled))
    {
    }

    void run() override { Q_EMIT loaded(*m_isCancelled ? QImage() : m_icons->image(m_appId, m_pixels)); }

Q_SIGNALS:
    void loaded(const QImage& image);

private:
    std::shared_ptr<ApplicationIcons> m_icons;
    QString m_appId;
    int m_pixels;
    std::shared_ptr<const std::atomic<bool>> m_isCancelled;
};

/// What QML waits for: always ends with a picture, or was no longer wanted.
class IconResponse : public QQuickImageResponse {
    Q_OBJECT

public:
    explicit IconResponse(std::shared_ptr<std::atomic<bool>> isCancelled)
        : m_isCancelled(std::move(isCancelled))
    {
    }

    QQuickTextureFactory* textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    void cancel() override { *m_isCancelled = true; }
    void arrive(const QImage& image)
    {
        m_image = image;
        Q_EMIT finished();
    }

private:
    QImage m_image;
    std::shared_ptr<std::atomic<bool>> m_isCancelled;
};

} // namespace

QString ApplicationIconProvider::name() { return QStringLiteral("applications"); }

QString ApplicationIconProvider::source(const Uuid& appId)
{
    return QStringLiteral("image://") + name() + QLatin1Char('/') + QString::fromStdString(appId.toString());
}

ApplicationIconProvider::ApplicationIconProvider(std::shared_ptr<ApplicationIcons> icons)
    : m_icons(std::move(icons))
{
    m_pool.setMaxThreadCount(2);
}

QQuickImageResponse* ApplicationIconProvider::requestImageResponse(const QString& id, const QSize& requestedSize)
{
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : defaultPixels;
    auto isCancelled = std::make_shared<std::atomic<bool>>(false);
    auto* load = new IconLoad(m_icons, id, pixels, isCancelled);
    auto* response = new IconResponse(std::move(isCancelled));
    // By way of this thread's event loop: the engine begins to listen only after this function has returned.
    QObject::connect(load, &IconLoad::loaded, response, &IconResponse::arrive, Qt::QueuedConnection);
    m_pool.start(load);
    return response;
}

} // namespace Korvane

#include "ApplicationIconProvider.moc"
