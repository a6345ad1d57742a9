// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/DirectoryEntry.h"
#include "Platform/Walking/WalkFolderReference.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace Korvane {

/// One part of a folder's listing on its way from whoever reads it to the consumer of the walk.
///
/// State and neighbours are guarded by the walk's ReadAhead. The rest belongs to the reader while the part is being
/// read, and to the consumer afterwards.
struct ListingPart : std::enable_shared_from_this<ListingPart> {
    enum class State : std::uint8_t { Unread, Reading, Read, Discarded };

    /// An entry without its name, which lies with the others of the part.
    struct Entry {
        std::int64_t allocatedSize;
        std::int64_t fileSize;
        std::int64_t modified; ///< Nanoseconds since 1970.
        std::uint32_t nameOffset;
        std::uint32_t passedOver; ///< How many files of the listing it stands for when it is no entry itself.
        std::uint16_t nameLength;
        EntryType type;
        bool isPackage : 1;
        bool isEntered : 1; ///< A folder that the walk goes into: the next one of `subfolders`.
        bool hasValues : 1; ///< False when values that were wanted could not be read.
        bool isSizeSet : 1; ///< The allocated size was asked for and is known,
        bool areValuesSet : 1; ///< and the other values too.
    };

    explicit ListingPart(WalkFolderReference owner)
        : folder(std::move(owner))
    {
    }

    std::string_view nameOf(const Entry& entry) const noexcept
    {
        return std::string_view(names).substr(entry.nameOffset, entry.nameLength);
    }

    WalkFolderReference folder;
    std::vector<Entry> entries;
    std::string names;
    std::vector<std::shared_ptr<ListingPart>> subfolders;
    std::shared_ptr<ListingPart> rest; ///< The next part of the same listing, if there is one.
    std::error_code error; ///< Why the listing ends after these entries before its end.

    std::atomic<State> state = State::Unread; ///< Once it is Read, the part is the consumer's without any lock.
    std::atomic<bool> isUnwanted{ false }; ///< Tells the reader that it may stop.
    std::size_t bytesAhead = 0; ///< What this part takes of the room for reading ahead.
    ListingPart* before = nullptr;
    ListingPart* after = nullptr;
};

} // namespace Korvane
