// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/ModuleViewModel.h"

#include <QCoreApplication>

#include <cstdlib>
#include <string_view>

namespace Korvane {

namespace {

// The rules hold these texts without Qt, where its tools would not find them.
[[maybe_unused]] const char* const translatable[] = {
    QT_TRANSLATE_NOOP("CleanerModule", "System Junk"),
    QT_TRANSLATE_NOOP("CleanerModule", "Caches, logs and leftover development junk"),
    QT_TRANSLATE_NOOP("CleanerModule", "Large & Old Files"),
    QT_TRANSLATE_NOOP("CleanerModule", "Find the files eating your disk"),
    QT_TRANSLATE_NOOP("CleanerModule", "Uninstaller"),
    QT_TRANSLATE_NOOP("CleanerModule", "Remove apps with all their leftovers"),
    QT_TRANSLATE_NOOP("CleanerModule", "Maintenance"),
    QT_TRANSLATE_NOOP("CleanerModule", "Speed up and maintain your Mac"),
    QT_TRANSLATE_NOOP("CleanerModule", "Duplicates"),
    QT_TRANSLATE_NOOP("CleanerModule", "Find duplicate files and photos"),
    QT_TRANSLATE_NOOP("CleanerModule", "iPhone & iPad"),
    QT_TRANSLATE_NOOP("CleanerModule", "Clean a connected iPhone or iPad"),
};

QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())); }

QString translated(std::string_view key)
{
    return QCoreApplication::translate("CleanerModule", QByteArray(key.data(), static_cast<qsizetype>(key.size())));
}

} // namespace

ModuleViewModel::ModuleViewModel(CleanerModule module, QObject* parent)
    : QObject(parent)
    , m_module(module)
{
}

QString ModuleViewModel::identity() const { return text(rawValue(m_module)); }

QString ModuleViewModel::title() const { return translated(Korvane::title(m_module)); }

QString ModuleViewModel::subtitle() const { return translated(Korvane::subtitle(m_module)); }

QString ModuleViewModel::symbol() const { return text(systemImage(m_module)); }

ModuleViewModel::Accent ModuleViewModel::accent() const
{
    switch (Korvane::accent(m_module)) {
    case AccentColor::cyan:
        return Accent::Cyan;
    case AccentColor::orange:
        return Accent::Orange;
    case AccentColor::red:
        return Accent::Red;
    case AccentColor::green:
        return Accent::Green;
    case AccentColor::purple:
        return Accent::Purple;
    case AccentColor::blue:
        return Accent::Blue;
    }
    std::abort();
}

bool ModuleViewModel::isGeneric() const
{
    switch (m_module) {
    case CleanerModule::systemJunk:
    case CleanerModule::largeFiles:
    case CleanerModule::duplicates:
        return true;
    case CleanerModule::uninstaller:
    case CleanerModule::maintenance:
    case CleanerModule::iosDevice:
        return false;
    }
    std::abort();
}

} // namespace Korvane
