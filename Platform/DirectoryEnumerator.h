// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"
#include "Platform/DirectoryEntry.h"
#include "Platform/EnumerationOptions.h"

#include <filesystem>
#include <memory>

namespace Korvane {

/// Walks everything below a folder, one entry at a time, folders before what they hold, in one deterministic order.
///
/// The root itself is not delivered. Links are delivered, never followed. Names are bytes, depth is unlimited,
/// descriptors and memory are bounded however many entries there are. Worker threads read ahead; next() and
/// skipDescendants() belong to one thread, the consumer's. A root that is no readable folder gives an empty walk
/// after one call of the error handler.
class DirectoryEnumerator {
public:
    DirectoryEnumerator(
        const std::filesystem::path& root, EnumerationOptions options, const Cancellation& cancellation = {});
    ~DirectoryEnumerator();
    DirectoryEnumerator(DirectoryEnumerator&&) noexcept;
    DirectoryEnumerator& operator=(DirectoryEnumerator&&) noexcept;

    /// The next entry, valid until the next call; null at the end. Throws CancellationError when cancelled.
    const DirectoryEntry* next();

    /// Passes over what lies below the folder that next() gave last; nothing happens if it was no folder.
    void skipDescendants();

private:
    class Walk;
    std::unique_ptr<Walk> m_walk;
};

} // namespace Korvane
