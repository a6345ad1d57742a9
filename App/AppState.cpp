// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "App/AppState.h"

namespace Korvane {

void AppState::setSelectedModule(std::optional<CleanerModule> module)
{
    if (m_selectedModule == module)
        return;
    m_selectedModule = module;
    Q_EMIT selectedModuleChanged();
}

void AppState::requestScan(CleanerModule module)
{
    // The screen must exist before the request is announced, or nobody would hear it.
    setSelectedModule(module);
    setPendingScan(module);
}

bool AppState::consumeScanRequest(CleanerModule module)
{
    if (m_pendingScan != module)
        return false;
    setPendingScan(std::nullopt);
    return true;
}

void AppState::setPendingScan(std::optional<CleanerModule> module)
{
    if (m_pendingScan == module)
        return;
    m_pendingScan = module;
    Q_EMIT pendingScanChanged();
}

} // namespace Korvane
