// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/SettingsViewModel.h"

#include "UI/FilledText.h"
#include "UI/PreferenceKeys.h"

#include <QCoreApplication>

#include <utility>

namespace Korvane {

SettingsViewModel::SettingsViewModel(
    std::shared_ptr<UserDefaults> defaults, FullDiskAccessViewModel& access, QObject* parent)
    : QObject(parent)
    , m_defaults(std::move(defaults))
    , m_access(access)
    , m_observation(m_defaults->observe([this](std::string_view key) { announce(key); }))
{
}

bool SettingsViewModel::movesToTrash() const
{
    return m_defaults->boolForKey(PreferenceKeys::moveToTrashInsteadOfDelete, true);
}

void SettingsViewModel::setMovesToTrash(bool movesToTrash)
{
    if (movesToTrash != this->movesToTrash())
        (void)m_defaults->setBool(PreferenceKeys::moveToTrashInsteadOfDelete, movesToTrash);
}

bool SettingsViewModel::asksBeforeCleaning() const
{
    return m_defaults->boolForKey(PreferenceKeys::confirmBeforeCleaning, true);
}

void SettingsViewModel::setAsksBeforeCleaning(bool asksBeforeCleaning)
{
    if (asksBeforeCleaning != this->asksBeforeCleaning())
        (void)m_defaults->setBool(PreferenceKeys::confirmBeforeCleaning, asksBeforeCleaning);
}

QString SettingsViewModel::versionText() const
{
    const QString version = QCoreApplication::applicationVersion();
    return filledIn(tr("Version %1"), version.isEmpty() ? QStringLiteral("—") : version);
}

void SettingsViewModel::announce(std::string_view key)
{
    if (key == PreferenceKeys::moveToTrashInsteadOfDelete)
        Q_EMIT movesToTrashChanged();
    else if (key == PreferenceKeys::confirmBeforeCleaning)
        Q_EMIT asksBeforeCleaningChanged();
}

} // namespace Korvane
