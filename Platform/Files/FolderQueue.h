// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/DoomedFolder.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <vector>

namespace Korvane {

/// The folders that wait to be emptied, shared among workers.
///
/// Each worker goes on with what it found last, so that few folders are open at a time; a worker with nothing left
/// takes what another one found first, which is the largest piece there is. Any thread may call any member.
class FolderQueue {
public:
    explicit FolderQueue(std::size_t workers)
        : m_waiting(workers)
    {
    }

    void push(std::size_t worker, const std::vector<DoomedFolder*>& folders);

    /// The next folder, which counts as in hand until done(); waits for one. Null when none is left or to come.
    DoomedFolder* take(std::size_t worker);

    /// Says that a folder taken needs no more work, or was pushed again.
    void done();

    /// Lets nobody take anything any more.
    void stop();

    /// How many folders nobody has in hand.
    std::size_t waiting() const;

private:
    DoomedFolder* next(std::size_t worker);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::deque<DoomedFolder*>> m_waiting;
    std::size_t m_waitingCount = 0;
    std::size_t m_inHand = 0;
    std::size_t m_asleep = 0;
    bool m_stopped = false;
};

} // namespace Korvane
