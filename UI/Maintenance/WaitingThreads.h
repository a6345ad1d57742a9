// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <QThreadPool>

namespace Korvane {

/// Threads for work that mostly waits, for another program or for somebody's password, so that it holds up no scan.
///
/// Main thread. Its end cancels what still runs and waits until that has ended.
class WaitingThreads {
public:
    WaitingThreads() { m_threads.setMaxThreadCount(maximum); }
    ~WaitingThreads()
    {
        m_cancellation.cancel();
        m_threads.waitForDone();
    }
    WaitingThreads(const WaitingThreads&) = delete;
    WaitingThreads& operator=(const WaitingThreads&) = delete;

    QThreadPool& threads() { return m_threads; }
    /// To be heeded by everything that runs here.
    const Cancellation& cancellation() const { return m_cancellation; }

private:
    /// More prompts than anybody leaves open; a thread is made only when it is needed.
    static constexpr int maximum = 64;

    QThreadPool m_threads;
    Cancellation m_cancellation;
};

} // namespace Korvane
