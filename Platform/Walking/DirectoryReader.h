// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/DirectoryEntry.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <system_error>

namespace Korvane {

/// One entry as the host lists it. `name` ends in a zero byte and lives until the next list().
struct ListedEntry {
    const char* name = nullptr;
    EntryType type = EntryType::Unknown;
    bool isHidden = false;
    bool isMarkedAsPackage = false; ///< A folder that the host shows as one file, whatever its name.
    bool hasValues = true; ///< False once values were asked for and could not be read.
    std::int64_t allocatedSize = 0;
    std::int64_t fileSize = 0;
    std::int64_t modified = 0; ///< Nanoseconds since 1970, as far as 64 bits reach.
};

/// How the host reads folders: the one part of walking that differs between systems.
///
/// An object belongs to one thread at a time and holds the buffer of one part of a listing.
class DirectoryReader {
public:
    /// After so many listings, the rest of a folder is left to whoever has time, however short they were: some file
    /// systems, such as those of networks, give a few entries at a time.
    static constexpr int listingsOfALongPart = 8;

    /// Which values of an entry are wanted.
    enum class Wanted { Type, AllocatedSize, All };

    DirectoryReader();
    ~DirectoryReader();
    DirectoryReader(const DirectoryReader&) = delete;
    DirectoryReader& operator=(const DirectoryReader&) = delete;

    /// Reads the next part of the listing of an open folder; false at its end, or with `error` set on failure.
    bool list(int folder, std::error_code& error);
    /// The next entry of that part, without "." and ".."; false when there is none.
    bool next(ListedEntry& entry);
    /// Whether the part filled the buffer so far that more is to be expected.
    bool isNearlyFull() const noexcept;
    /// Where the listing of `folder` goes on after this part, for resume(). `before`: where the part began.
    std::int64_t positionAfter(int folder, std::int64_t before) const noexcept;

    /// Completes an entry of `folder` with what is wanted and the listing did not tell. Links are not followed.
    static void readValues(int folder, Wanted wanted, ListedEntry& entry);

    /// What a path names at first sight: links are followed only to see that they lead somewhere.
    static ListedEntry statusOfItem(const std::string& path);

    /// Opens a folder by its path, of any length; links on the way are followed.
    static int openPath(const std::string& path, std::error_code& error);
    /// Opens a folder below another one; no link is followed on the way. `isSingle`: `relative` is one name.
    static int openFolder(int parent, const char* relative, bool isSingle, std::error_code& error);
    /// Opens a folder only to reach what lies below it, as one needs no permission to list for; -1 on failure.
    static int openLeadingFolder(int parent, const char* path) noexcept;
    /// Whether openFolder can take several levels in one call.
    static bool opensSeveralLevels() noexcept;
    /// Whether resume() can find a place in a listing again.
    static bool canResume() noexcept;
    /// Goes on where a listing was left before its folder was closed and opened again.
    static void resume(int folder, std::int64_t position);
    static void close(int folder) noexcept;

    /// How many folders a walk may keep open beside those that are being read.
    static std::size_t descriptorsToKeep();
    /// How many threads read ahead.
    static std::size_t readerCount() noexcept;
    /// Called once by each thread of the pool: its name, and that signals are for others.
    static void prepareThread();

private:
    struct Buffer;
    std::unique_ptr<Buffer> m_buffer;
};

} // namespace Korvane
