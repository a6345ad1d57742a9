// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Hashing/ReadPortion.h"
#include "Platform/Hashing/UpcomingPortions.h"

#include <array>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace Korvane {

/// Reads the first bytes of files, one after another, on a thread of its own: one portion ahead of whoever takes them.
///
/// Holds two buffers of at most a portion. To be used on one thread.
class PrefixReader {
public:
    PrefixReader(
        std::size_t files, UpcomingPortions::PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation);
    ~PrefixReader();
    PrefixReader(const PrefixReader&) = delete;
    PrefixReader& operator=(const PrefixReader&) = delete;

    /// The next portion, which stays until the next call; null after the last file.
    ///
    /// Throws CancellationError when cancelled.
    const ReadPortion* next();

private:
    void run() noexcept;
    void readAll();
    ReadPortion* waitForFreeBuffer();
    void read(ReadPortion& target);
    const ReadPortion* readHere();
    std::size_t capacity() const noexcept;

    const std::int64_t m_prefixBytes;
    const Cancellation m_cancellation;
    UpcomingPortions m_upcoming;
    std::array<ReadPortion, 2> m_portions;
    std::size_t m_first = 0; ///< The one that next() gave or gives.
    std::size_t m_filled = 0; ///< How many are read and not yet given back.
    bool m_isTaken = false; ///< next() has given the first one away.
    bool m_hasEnded = false;
    bool m_isStopping = false;
    std::exception_ptr m_failure;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::thread m_thread; ///< None when the system has none left: next() reads by itself.
};

} // namespace Korvane
