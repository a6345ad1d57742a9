// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <QThreadPool>

namespace Korvane {

/// Threads for work that mostly waits, for another program or for a person, and must hold up no scan.
///
/// Main thread. Their end cancels what still runs and waits until that has ended.
class WaitingThreads {
public:
    WaitingThreads() { m_pool.setMaxThreadCount(maximum); }
    ~WaitingThreads()
    {
        m_cancellation.cancel();
        m_pool.waitForDone();
    }
    WaitingThreads(const WaitingThreads&) = delete;
    WaitingThreads& operator=(const WaitingThreads&) = delete;

    QThreadPool& pool() { return m_pool; }
    /// To be heeded by everything that runs here.
    const Cancellation& cancellation() const { return m_cancellation; }

private:
    /// More than anybody leaves waiting; a thread is made only when it is needed.
    static constexpr int maximum = 64;

    QThreadPool m_pool;
    Cancellation m_cancellation;
};

} // namespace Korvane
