// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Maintenance/MaintenanceWork.h"

#include "Core/Maintenance/LaunchAgentRemoval.h"
#include "UI/Background.h"

#include <optional>
#include <string>

namespace Korvane {

void MaintenanceWork::remove(const LaunchAgent& agent, const Host& host)
{
    runInBackground(
        threads(), this,
        [agent, host, cancellation = cancellation()] { return removeLaunchAgent(agent, host, cancellation); },
        [this](const std::optional<std::string>&) { Q_EMIT removed(); });
}

} // namespace Korvane
