// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Maintenance/LaunchAgent.h"
#include "Platform/Host.h"
#include "UI/WaitingThreads.h"

#include <QObject>

namespace Korvane {

/// What maintenance has under way, longer than a screen lives: tasks and removals, which mostly wait, for another
/// program or for somebody's password, and so have threads of their own and hold up no scan.
///
/// Main thread. Its end cancels what still runs and waits until that has ended; a removal that has begun still moves
/// its file to the Trash.
class MaintenanceWork : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    QThreadPool& threads() { return m_threads.pool(); }
    /// To be heeded by everything that runs here.
    const Cancellation& cancellation() const { return m_threads.cancellation(); }
    /// Stops an agent and moves its file to the Trash.
    void remove(const LaunchAgent& agent, const Host& host);

Q_SIGNALS:
    /// A removal has ended, whatever came of it.
    void removed();

private:
    WaitingThreads m_threads;
};

} // namespace Korvane
