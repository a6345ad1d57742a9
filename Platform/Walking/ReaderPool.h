// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Walking/ReaderJob.h"

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Korvane {

/// The threads that read folders ahead, shared by all walks of the process.
///
/// Started when first wanted, asleep while no walk wants them, joined when the program ends. No walk depends on them:
/// whoever started it does everything that no reader has taken.
class ReaderPool {
public:
    static ReaderPool& shared();

    ReaderPool();
    ~ReaderPool();
    ReaderPool(const ReaderPool&) = delete;
    ReaderPool& operator=(const ReaderPool&) = delete;

    /// Asks one more thread to call the job's help(). Any thread.
    void invite(std::shared_ptr<ReaderJob> job);

    /// Whether the program is ending: whoever helps returns at once.
    bool isStopping() const noexcept { return m_stopping.load(std::memory_order_relaxed); }

private:
    void run();
    void startThread();

    std::mutex m_mutex;
    std::condition_variable m_invited;
    std::vector<std::shared_ptr<ReaderJob>> m_invitations;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    std::atomic<bool> m_stopping{ false };
};

} // namespace Korvane
