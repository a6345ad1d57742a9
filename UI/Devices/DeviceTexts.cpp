// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Devices/DeviceTexts.h"

#include "Core/Scanning/FormattedBytes.h"
#include "Platform/Localized.h"
#include "UI/FilledText.h"
#include "UI/ShortenedText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace Korvane::DeviceTexts {

namespace {

// More than a line holds, and in a question little enough that its buttons stay in the window.
constexpr qsizetype longestName = 160;
constexpr qsizetype longestMessage = 1024;

/// Behind the last full stop, in small letters; empty where there is none, or nothing before it.
std::string extension(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return {};
    std::string letters(name.substr(dot + 1));
    std::transform(letters.begin(), letters.end(), letters.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; });
    return letters;
}

} // namespace

QString name(std::string_view bytes) { return shortened(bytes, longestName, Cut::Middle); }

QString message(const QString& text) { return shortened(text, longestMessage, Cut::End); }

QString size(std::int64_t bytes) { return QString::fromStdString(formattedBytes(bytes)); }

QString version(std::string_view productVersion)
{
    return filledIn(QCoreApplication::translate("Devices", "iOS %1"), name(productVersion));
}

double usedFraction(const IOSDevice& device)
{
    if (device.totalBytes <= 0)
        return 0;
    return std::clamp(static_cast<double>(device.usedBytes()) / static_cast<double>(device.totalBytes), 0.0, 1.0);
}

QString storage(const IOSDevice& device)
{
    if (device.totalBytes <= 0)
        return {};
    return filledIn(QCoreApplication::translate("Devices", "%1 used of %2 — %3 free"), size(device.usedBytes()),
        size(device.totalBytes), size(device.freeBytes));
}

QString detail(const IOSBackup& backup)
{
    QStringList parts;
    if (backup.productVersion)
        parts.append(version(*backup.productVersion));
    if (backup.lastBackupDate) {
        const QDate day = QDateTime::fromMSecsSinceEpoch(backup.lastBackupDate->time_since_epoch().count()).date();
        parts.append(filledIn(QCoreApplication::translate("Devices", "· last backup %1"),
            QLocale().toString(day, QCoreApplication::translate("Devices", "d MMM yyyy"))));
    }
    return parts.join(QLatin1Char(' '));
}

QString files(std::size_t count)
{
    return QCoreApplication::translate("Devices", "%n files", nullptr, pluralCount(count));
}

QString symbol(const IOSMediaFile& file)
{
    static constexpr std::array<std::string_view, 3> videos{ "mov", "mp4", "m4v" };
    const bool isVideo = std::find(videos.begin(), videos.end(), extension(file.name)) != videos.end();
    return isVideo ? QStringLiteral("video.fill") : QStringLiteral("photo.fill");
}

} // namespace Korvane::DeviceTexts
