// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Hashing/ReadPortion.h"
#include "Platform/Hashing/UpcomingPortions.h"

namespace Korvane {

/// Reads the first bytes of files once and in order, while the system is told ahead what comes next.
///
/// Whoever takes the portions reads them too: what was just copied is still in that core's caches, where a second
/// thread's copy would have to be fetched from another core. Holds one buffer of 256 KiB at most. One thread at a time.
class PrefixReader {
public:
    PrefixReader(
        std::size_t files, UpcomingPortions::PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation);
    PrefixReader(const PrefixReader&) = delete;
    PrefixReader& operator=(const PrefixReader&) = delete;

    /// The next portion, which stays until the next call; null after the last file.
    ///
    /// Throws CancellationError when cancelled.
    const ReadPortion* next();

private:
    void readFirst();
    void popFirst();
    std::int64_t capacity() const noexcept;

    const std::int64_t m_prefixBytes;
    const Cancellation m_cancellation;
    UpcomingPortions m_upcoming;
    std::int64_t m_done = 0; ///< Bytes of the first upcoming portion that have been read.
    ReadPortion m_portion;
};

} // namespace Korvane
