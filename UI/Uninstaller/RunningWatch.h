// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/RunningApps.h"
#include "Platform/Workspace.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

namespace Korvane {

/// Which applications run: asked of the desktop again and again while somebody watches, and never otherwise.
///
/// Main thread; the desktop is asked in the background. What was known stays known while nobody watches.
class RunningWatch : public QObject {
    Q_OBJECT

public:
    explicit RunningWatch(std::shared_ptr<Workspace> workspace, QObject* parent = nullptr);

    /// Whether the application runs, as far as is known; never when it has no identifier.
    bool contains(const InstalledApp& app) const { return m_running && m_running->contains(app); }

    /// What somebody else has just learned.
    void setRunning(RunningApps running);

    /// Asks at once, and again a second and a half after each answer, until nobody watches any more.
    void setWatched(bool watched);
    bool isWatched() const { return m_isWatched; }

Q_SIGNALS:
    void changed();

private:
    void ask();

    std::shared_ptr<Workspace> m_workspace;
    std::optional<RunningApps> m_running;
    QTimer m_pause;
    bool m_isWatched = false;
    bool m_isAsking = false;
};

} // namespace Korvane
