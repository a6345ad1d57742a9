// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Modules.h"

#include <QObject>

#include <optional>

namespace Korvane {

/// Where the user is, and which scan has been asked for: what screens need of the application's state.
///
/// Main thread. The application implements it; screens know only this.
class Navigation : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The module shown in the main window; nothing means the dashboard.
    virtual std::optional<CleanerModule> selectedModule() const = 0;
    virtual void setSelectedModule(std::optional<CleanerModule> module) = 0;

    /// A scan that another screen asked for and that its module's screen has not taken up yet.
    virtual std::optional<CleanerModule> pendingScan() const = 0;

    /// Selects `module` and records it as pending, so that its screen starts a scan when it is shown.
    virtual void requestScan(CleanerModule module) = 0;

    /// True, and the request is cleared, if the pending scan is exactly for `module`; else nothing changes.
    virtual bool consumeScanRequest(CleanerModule module) = 0;

Q_SIGNALS:
    void selectedModuleChanged();
    void pendingScanChanged();
};

} // namespace Korvane
