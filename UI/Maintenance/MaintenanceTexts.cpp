// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/MaintenanceTexts.h"

#include "UI/ShortenedText.h"

#include <QCoreApplication>

#include <string_view>

namespace Korvane::MaintenanceTexts {

namespace {

// More than a line holds, and in a question little enough that its buttons stay in the window.
constexpr qsizetype longestLabel = 160;
constexpr qsizetype longestDetail = 512;
constexpr qsizetype longestMessage = 1024;

// The rules hold these texts without Qt, where its tools would not find them.
[[maybe_unused]] const char* const translatable[] = {
    QT_TRANSLATE_NOOP("Maintenance", "Free Up RAM"),
    QT_TRANSLATE_NOOP("Maintenance", "Purge inactive memory to relieve pressure"),
    QT_TRANSLATE_NOOP("Maintenance", "Flush DNS Cache"),
    QT_TRANSLATE_NOOP("Maintenance", "Fix stale DNS lookups and network glitches"),
    QT_TRANSLATE_NOOP("Maintenance", "Reindex Spotlight"),
    QT_TRANSLATE_NOOP("Maintenance", "Rebuild the search index from scratch"),
    QT_TRANSLATE_NOOP("Maintenance", "User Agents"),
    QT_TRANSLATE_NOOP("Maintenance", "System Agents"),
    QT_TRANSLATE_NOOP("Maintenance", "System Daemons"),
};

QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

QString translated(std::string_view key)
{
    return QCoreApplication::translate("Maintenance", QByteArray(key.data(), static_cast<qsizetype>(key.size())));
}

} // namespace

QString title(MaintenanceTask task) { return translated(Korvane::title(task)); }

QString subtitle(MaintenanceTask task) { return translated(Korvane::subtitle(task)); }

QString symbol(MaintenanceTask task) { return text(systemImage(task)); }

QString identity(MaintenanceTask task) { return text(rawValue(task)); }

QString domain(LaunchAgent::Domain domain) { return translated(displayText(domain)); }

QString detail(const LaunchAgent& agent)
{
    return shortened(agent.program ? std::string_view(*agent.program) : std::string_view(agent.url.native()),
        longestDetail, Cut::Middle);
}

QString label(const LaunchAgent& agent) { return shortened(std::string_view(agent.label), longestLabel, Cut::End); }

QString message(const QString& text) { return shortened(text, longestMessage, Cut::End); }

} // namespace Korvane::MaintenanceTexts
