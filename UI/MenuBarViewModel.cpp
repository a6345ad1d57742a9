// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/MenuBarViewModel.h"

#include "Core/Maintenance/MaintenanceRunner.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Platform/RelativeDate.h"
#include "UI/Background.h"
#include "UI/FilledText.h"
#include "UI/PreferenceKeys.h"

#include <chrono>
#include <cmath>
#include <exception>
#include <string_view>
#include <utility>

namespace Korvane {

namespace {

double secondsSince1970()
{
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

/// Whether it succeeded, which nobody asks.
bool freeRam(const Host& host, const Cancellation& cancellation)
{
    try {
        MaintenanceRunner::run(MaintenanceTask::FreeRAM, host, cancellation);
        return true;
    } catch (const std::exception&) {
        // There is no place here to tell it; the maintenance screen has one.
        return false;
    }
}

} // namespace

MenuBarViewModel::MenuBarViewModel(Host host, Navigation& navigation, QObject* parent)
    : QObject(parent)
    , m_host(std::move(host))
    , m_navigation(navigation)
    , m_observation(m_host.defaults->observe([this](std::string_view key) {
        if (key == PreferenceKeys::lastCleanedBytes || key == PreferenceKeys::lastCleanedDate)
            Q_EMIT lastCleanupChanged();
    }))
{
    m_minutes.setInterval(std::chrono::minutes(1));
    connect(&m_minutes, &QTimer::timeout, this, &MenuBarViewModel::lastCleanupChanged);
}

double MenuBarViewModel::lastCleanedDate() const
{
    return m_host.defaults->doubleForKey(PreferenceKeys::lastCleanedDate, 0.0);
}

bool MenuBarViewModel::hasLastCleanup() const
{
    // What is no moment after 1970 was written by nobody who cleaned.
    const double date = lastCleanedDate();
    return std::isfinite(date) && date > 0.0;
}

QString MenuBarViewModel::lastCleanup() const
{
    const std::int64_t bytes = m_host.defaults->integerForKey(PreferenceKeys::lastCleanedBytes, 0);
    return filledIn(tr("Last cleanup: %1"), QString::fromStdString(formattedBytes(bytes)));
}

QString MenuBarViewModel::lastCleanupMoment() const
{
    return QString::fromStdString(RelativeDate::string(lastCleanedDate(), secondsSince1970()));
}

void MenuBarViewModel::setShown(bool isShown)
{
    if (isShown == this->isShown())
        return;
    if (!isShown) {
        m_minutes.stop();
        return;
    }
    m_minutes.start();
    Q_EMIT lastCleanupChanged();
}

void MenuBarViewModel::open() { Q_EMIT openRequested(); }

void MenuBarViewModel::scanSystemJunk()
{
    Q_EMIT openRequested();
    m_navigation.requestScan(CleanerModule::systemJunk);
}

void MenuBarViewModel::freeUpRam()
{
    if (m_isFreeingRam)
        return;
    setFreeingRam(true);
    runInBackground(
        m_threads.pool(), this,
        [host = m_host, cancellation = m_threads.cancellation()] { return freeRam(host, cancellation); },
        [this](bool) { setFreeingRam(false); });
}

void MenuBarViewModel::quit() { Q_EMIT quitRequested(); }

void MenuBarViewModel::setFreeingRam(bool isFreeing)
{
    m_isFreeingRam = isFreeing;
    Q_EMIT freeingRamChanged();
}

} // namespace Korvane
