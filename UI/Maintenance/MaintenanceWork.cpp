// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/MaintenanceWork.h"

#include "Core/Maintenance/LaunchAgentRemoval.h"
#include "UI/Background.h"

#include <optional>
#include <string>

namespace Korvane {

MaintenanceWork::MaintenanceWork(QObject* parent)
    : QObject(parent)
{
    m_threads.setMaxThreadCount(maximum);
}

MaintenanceWork::~MaintenanceWork()
{
    m_cancellation.cancel();
    m_threads.waitForDone();
}

void MaintenanceWork::remove(const LaunchAgent& agent, const Host& host)
{
    runInBackground(
        m_threads, this,
        [agent, host, cancellation = m_cancellation] { return removeLaunchAgent(agent, host, cancellation); },
        [this](const std::optional<std::string>&) { Q_EMIT removed(); });
}

} // namespace Korvane
