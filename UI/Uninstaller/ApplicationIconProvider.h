// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Uninstaller/ApplicationIcons.h"

#include <QQuickAsyncImageProvider>
#include <QThreadPool>

#include <memory>

namespace Korvane {

/// Hands the icons of applications to QML as "image://applications/ID", by the text of the application's id.
///
/// Made on the main thread and given to an engine. Loads on threads of its own, two at most, so that neither the main
/// thread nor a scan waits for a picture.
class ApplicationIconProvider : public QQuickAsyncImageProvider {
public:
    /// The name under which the engine is to know the provider.
    static QString name();
    /// What QML is to show for an application.
    static QString source(const Uuid& appId);

    explicit ApplicationIconProvider(std::shared_ptr<ApplicationIcons> icons);

    /// Takes the width for both sides; 64 pixels when none is asked for.
    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    std::shared_ptr<ApplicationIcons> m_icons;
    QThreadPool m_pool; ///< Destroyed first, and so waited for.
};

} // namespace Korvane
