// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Hashing/ReadPortion.h"
#include "Platform/Hashing/UpcomingPortions.h"

namespace Korvane {

/// Reads the first bytes of files once and in order, while the system is told ahead what comes next.
///
/// Whoever takes the portions reads them too: a second thread's copy would have to be fetched from another core. Holds
/// one buffer of at most a portion. One thread at a time.
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
    std::size_t capacity() const noexcept;

    const std::int64_t m_prefixBytes;
    const Cancellation m_cancellation;
    UpcomingPortions m_upcoming;
    ReadPortion m_portion;
};

} // namespace Korvane
