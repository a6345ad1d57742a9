// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>

namespace Korvane {

/// When a walk asks the pool for one more reader: not before it has run for a moment, and then one after the other.
///
/// A tree that one thread reads in less time than a second one needs to wake up is left to that thread; on a slow disk
/// all readers are at work after a millisecond. Any thread.
class ReaderDemand {
public:
    /// Whether one more reader is to be invited now; counts it as invited if so.
    bool takeInvitation() noexcept;
    /// A reader that was invited has gone.
    void leave() noexcept { m_readers.fetch_sub(1, std::memory_order_relaxed); }
    bool hasReaders() const noexcept { return m_readers.load(std::memory_order_relaxed) > 0; }

private:
    static std::int64_t now() noexcept;

    std::atomic<std::int64_t> m_lastInvitation{ now() };
    std::atomic<std::uint32_t> m_readers{ 0 };
};

} // namespace Korvane
