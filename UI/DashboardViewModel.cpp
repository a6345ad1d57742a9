// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/DashboardViewModel.h"

#include "Core/Scanning/FormattedBytes.h"
#include "UI/Background.h"
#include "UI/FilledText.h"

#include <algorithm>
#include <utility>

namespace Korvane {

DashboardViewModel::DashboardViewModel(
    QList<ModuleViewModel*> modules, Navigation& navigation, Measure measure, QObject* parent)
    : QObject(parent)
    , m_modules(std::move(modules))
    , m_navigation(navigation)
    , m_measure(std::move(measure))
{
}

std::int64_t DashboardViewModel::usedBytes() const { return std::max<std::int64_t>(0, m_totalBytes - m_freeBytes); }

double DashboardViewModel::usedFraction() const
{
    return m_totalBytes > 0 ? static_cast<double>(usedBytes()) / static_cast<double>(m_totalBytes) : 0.0;
}

bool DashboardViewModel::isNearlyFull() const
{
    // total * 9 / 10 in whole numbers, in an order that cannot overflow.
    const std::int64_t limit = m_totalBytes / 10 * 9 + m_totalBytes % 10 * 9 / 10;
    return usedBytes() > limit;
}

QString DashboardViewModel::capacityText() const
{
    return filledIn(tr("%1 free of %2"), freeText(), QString::fromStdString(formattedBytes(m_totalBytes)));
}

QString DashboardViewModel::usedText() const { return QString::fromStdString(formattedBytes(usedBytes())); }

QString DashboardViewModel::freeText() const { return QString::fromStdString(formattedBytes(m_freeBytes)); }

QQmlListProperty<ModuleViewModel> DashboardViewModel::modules() { return { this, &m_modules }; }

void DashboardViewModel::measure()
{
    runInBackground(this, m_measure, [this, measurement = ++m_measurement](std::optional<VolumeCapacity> capacity) {
        // Two may be under way, and end the other way round.
        if (measurement != m_measurement)
            return;
        m_totalBytes = capacity ? capacity->total : 0;
        m_freeBytes = capacity ? capacity->availableForImportantUsage : 0;
        Q_EMIT measured();
    });
}

void DashboardViewModel::smartScan() { m_navigation.requestScan(CleanerModule::systemJunk); }

void DashboardViewModel::open(ModuleViewModel* module) { m_navigation.setSelectedModule(module->module()); }

} // namespace Korvane
