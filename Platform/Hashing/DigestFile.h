// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/FileDescriptor.h"
#include "Platform/Hashing/FileRange.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace Korvane {

/// A regular file, opened to have its first bytes read once. One thread at a time.
class DigestFile {
public:
    /// A link is never followed, a pipe never waited for, a placeholder whose content lies in a cloud never opened.
    explicit DigestFile(const std::filesystem::path& file);

    /// Whether there is something to read: a regular file that could be opened.
    bool isOpen() const noexcept { return static_cast<bool>(m_descriptor); }
    /// Whether it could not be opened only because too many other files are.
    bool lacksDescriptor() const noexcept { return m_lacksDescriptor; }
    /// Bytes, when it was opened.
    std::int64_t size() const noexcept { return m_size; }
    /// Whether both are names of one file.
    bool isSameFileAs(const DigestFile& other) const noexcept;

    /// Tells the system what is going to be read, without waiting for it; given up when cancelled.
    ///
    /// Answers which parts the system did not hold in memory before: what giveBack() is for. Nothing where the system
    /// does not tell.
    std::vector<FileRange> tellAhead(FileRange range, const Cancellation& cancellation) const;

    /// Lets the system forget what it holds of these ranges, as far as nobody else uses them.
    void giveBack(const std::vector<FileRange>& ranges) const noexcept;

    /// Reads what lies in the range; the number of bytes, fewer at the end of the file or when cancelled, -1 when
    /// reading fails.
    ///
    /// What is in memory already is taken by one call. What a disk must be waited for comes in small pieces, so that a
    /// cancel never waits for much.
    std::int64_t read(unsigned char* buffer, FileRange range, const Cancellation& cancellation) const;

private:
    /// Reads the beginning of the range as far as it is in memory; the number of bytes, 0 also where the system cannot.
    std::int64_t readFromMemory(unsigned char* buffer, FileRange range) const;

    FileDescriptor m_descriptor;
    bool m_lacksDescriptor = false;
    std::int64_t m_size = 0;
    std::uint64_t m_device = 0;
    std::uint64_t m_number = 0;
};

} // namespace Korvane
