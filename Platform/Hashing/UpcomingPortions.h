// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Hashing/DigestFile.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>

namespace Korvane {

/// Bytes that are read by one call: the first bytes of a file, or a part of them when they are many.
struct UpcomingPortion {
    std::shared_ptr<const DigestFile> file; ///< Null when it could not be opened.
    FileRange range;
    bool isLast = true; ///< The last portion of its file.
    std::vector<FileRange> broughtIn; ///< What the system did not hold before it was told to fetch it.

    /// How many bytes there are to read, as far as is known.
    std::int64_t knownBytes() const;
};

/// The portions of many files in the order in which they are read. The system is told of the next few ahead.
///
/// Bounded in bytes and in open files, whatever the prefix. One thread at a time.
class UpcomingPortions {
public:
    /// The most bytes in a portion: what duplicates are compared by fits into one.
    static constexpr std::int64_t largestPortion = 4'194'304;

    using PathAt = std::function<const std::filesystem::path&(std::size_t)>;

    /// `prefixBytes` from the start of each of `files` files, whose paths `pathAt` gives.
    UpcomingPortions(std::size_t files, PathAt pathAt, std::int64_t prefixBytes, Cancellation cancellation);
    ~UpcomingPortions();
    UpcomingPortions(const UpcomingPortions&) = delete;
    UpcomingPortions& operator=(const UpcomingPortions&) = delete;

    /// Opens the next files and tells the system of them, as far as the bounds allow.
    void lookAhead();

    /// After lookAhead() only at the end of all files.
    bool isEmpty() const noexcept { return m_portions.empty(); }
    const UpcomingPortion& front() const { return m_portions.front(); }

    /// The front has been read: the system may forget what it was told to fetch for it.
    void pop();

    /// The front is the last of its file after all: reading it failed, or found the end.
    void popWholeFile();

private:
    bool planNext();
    bool openNext();
    std::vector<FileRange> tellAhead(FileRange range);

    const std::size_t m_files;
    const PathAt m_pathAt;
    const std::int64_t m_prefixBytes;
    const Cancellation m_cancellation;
    std::size_t m_next = 0;
    std::shared_ptr<const DigestFile> m_file; ///< Of which portions are still to be planned.
    std::int64_t m_offset = 0; ///< Where they begin.
    std::int64_t m_plannedBytes = 0; ///< Known ones of all portions.
    std::deque<UpcomingPortion> m_portions;
};

} // namespace Korvane
