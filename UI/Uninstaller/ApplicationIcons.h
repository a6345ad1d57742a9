// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/InstalledApp.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QString>

#include <filesystem>
#include <vector>

namespace Korvane {

/// The icons of the applications that are listed, by the text of their ids; each is read once for each size.
///
/// Any thread, but for `setApps`. Shared by the screen and by what loads pictures for it.
class ApplicationIcons {
public:
    ApplicationIcons();

    /// From now on these applications have icons, and no others. Main thread.
    void setApps(const std::vector<InstalledApp>& apps);

    /// The icon of an application, `pixels` wide and high: its own, or where it has none that can be read, a drawn one.
    /// Not on the main thread: it reads files.
    QImage image(const QString& appId, int pixels);

private:
    struct Key {
        QString appId;
        int pixels = 0;
        bool operator==(const Key&) const = default;
    };
    friend size_t qHash(const Key& key, size_t seed) { return qHashMulti(seed, key.appId, key.pixels); }

    QMutex m_mutex;
    QHash<QString, std::vector<std::filesystem::path>> m_places;
    QCache<Key, QImage> m_images;
};

} // namespace Korvane
