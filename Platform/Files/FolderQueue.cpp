// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderQueue.h"

namespace Korvane {

void FolderQueue::push(std::size_t worker, const std::vector<DoomedFolder*>& folders)
{
    const std::lock_guard lock(m_mutex);
    m_waiting[worker].insert(m_waiting[worker].end(), folders.begin(), folders.end());
    m_waitingCount += folders.size();
    if (m_asleep > 0)
        m_changed.notify_all();
}

DoomedFolder* FolderQueue::take(std::size_t worker)
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        if (m_stopped)
            return nullptr;
        if (DoomedFolder* folder = next(worker)) {
            --m_waitingCount;
            ++m_inHand;
            return folder;
        }
        if (m_inHand == 0) {
            m_changed.notify_all();
            return nullptr;
        }
        ++m_asleep;
        m_changed.wait(lock);
        --m_asleep;
    }
}

DoomedFolder* FolderQueue::next(std::size_t worker)
{
    auto& own = m_waiting[worker];
    if (!own.empty()) {
        DoomedFolder* const folder = own.back();
        own.pop_back();
        return folder;
    }
    for (auto& other : m_waiting) {
        if (!other.empty()) {
            DoomedFolder* const folder = other.front();
            other.pop_front();
            return folder;
        }
    }
    return nullptr;
}

void FolderQueue::done()
{
    const std::lock_guard lock(m_mutex);
    if (--m_inHand == 0 && m_waitingCount == 0)
        m_changed.notify_all();
}

void FolderQueue::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    m_changed.notify_all();
}

std::size_t FolderQueue::waiting() const
{
    const std::lock_guard lock(m_mutex);
    return m_waitingCount;
}

} // namespace Korvane
