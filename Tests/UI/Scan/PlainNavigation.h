// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Navigation.h"

namespace Korvane {

/// The application's navigation without an application.
class PlainNavigation final : public Navigation {
    Q_OBJECT

public:
    using Navigation::Navigation;

    std::optional<CleanerModule> selectedModule() const override { return m_selected; }
    void setSelectedModule(std::optional<CleanerModule> module) override
    {
        m_selected = module;
        Q_EMIT selectedModuleChanged();
    }
    std::optional<CleanerModule> pendingScan() const override { return m_pending; }
    void requestScan(CleanerModule module) override
    {
        setSelectedModule(module);
        m_pending = module;
        Q_EMIT pendingScanChanged();
    }
    bool consumeScanRequest(CleanerModule module) override
    {
        if (m_pending != module)
            return false;
        m_pending.reset();
        Q_EMIT pendingScanChanged();
        return true;
    }

private:
    std::optional<CleanerModule> m_selected;
    std::optional<CleanerModule> m_pending;
};

} // namespace Korvane
