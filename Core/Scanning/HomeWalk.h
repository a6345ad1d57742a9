// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/DirectoryEnumerator.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace Korvane {

/// The walk that scans of a whole home share: regular files outside "Library" of the home folder, hidden folders,
/// packages and dependency folders. Folders that cannot be read are passed over.
class HomeWalk {
public:
    /// How many entries lie between two marks, at which a scan reports and can be cancelled.
    static constexpr std::int64_t entriesPerMark = 512;

    /// Called at the first entry and at every 512th after it, with that entry or with the one that stands for it.
    using MarkHandler = std::function<void(const DirectoryEntry&)>;

    /// Which values of a file are read, and from which size on files are delivered; smaller ones are only counted.
    struct Files {
        PrefetchedValues values = PrefetchedValues::FileValues;
        std::int64_t smallestAllocatedSize = 0;
        std::int64_t smallestFileSize = 0;
    };

    /// A walk below `root`; empty when `root` is no absolute path of a folder that can be read.
    HomeWalk(const std::filesystem::path& root, const std::filesystem::path& home, Files files, MarkHandler atMark,
        Cancellation cancellation);

    /// The next of these files, valid until the next call; null at the end. Throws CancellationError when cancelled.
    const DirectoryEntry* nextFile();

private:
    void visit(const DirectoryEntry& entry);
    bool isPassedOver(const DirectoryEntry& entry);

    std::string m_library;
    bool m_rootIsInLibrary = false;
    MarkHandler m_atMark;
    Cancellation m_cancellation;
    std::int64_t m_visited = 0;
    std::int64_t m_nextMark = 0;
    std::optional<DirectoryEnumerator> m_enumerator;
};

} // namespace Korvane
