// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "UI/Navigation.h"

#include <optional>

namespace Korvane {

/// The one piece of state that the main window, its screens and the menu bar share. Main thread.
class AppState final : public Navigation {
    Q_OBJECT

public:
    using Navigation::Navigation;

    std::optional<CleanerModule> selectedModule() const override { return m_selectedModule; }
    void setSelectedModule(std::optional<CleanerModule> module) override;
    std::optional<CleanerModule> pendingScan() const override { return m_pendingScan; }
    void requestScan(CleanerModule module) override;
    bool consumeScanRequest(CleanerModule module) override;

private:
    void setPendingScan(std::optional<CleanerModule> module);

    std::optional<CleanerModule> m_selectedModule;
    std::optional<CleanerModule> m_pendingScan;
};

} // namespace Korvane
