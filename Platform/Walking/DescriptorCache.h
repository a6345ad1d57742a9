// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <system_error>
#include <vector>

namespace Korvane {

class DirectoryReader;
class WalkFolder;

/// The open descriptors of one walk: few, however deep and wide the tree is.
///
/// A folder is opened relative to the nearest ancestor that is still open, never through a link. Folders whose
/// children are still to be opened stay open while there is room; the ones not used for longest are closed first.
/// Any thread may call any member. Outlives the walk's folders.
class DescriptorCache {
public:
    /// Whether a descriptor will be wanted again.
    enum class Keep { No, Yes };
    enum class Listing { GoesOn, AtEnd };

    DescriptorCache();
    DescriptorCache(const DescriptorCache&) = delete;
    DescriptorCache& operator=(const DescriptorCache&) = delete;

    /// Opens the root by its path; a root that is a link to a folder is followed. It stays open for the whole walk.
    std::error_code openRoot(WalkFolder& root);

    /// The folder's descriptor, open until unpin; -1 with `error` set when it cannot be opened.
    int pin(WalkFolder& folder, std::error_code& error);

    /// Ends a use that pin began, by a reader that has come to the end of the folder's listing or not.
    void unpin(WalkFolder& folder, Listing listing, Keep keep);

    /// Remembers that the listing goes on after the part that `reader` holds, should the folder be closed before.
    void markPosition(WalkFolder& folder, const DirectoryReader& reader);

    /// Closes the descriptor of a folder that is about to be destroyed.
    void forget(WalkFolder& folder) noexcept;

private:
    int openStep(
        WalkFolder& from, WalkFolder& target, const std::string& relative, bool isSingle, std::error_code& error);
    int openBelow(WalkFolder& ancestor, WalkFolder& folder, std::error_code& error);
    int openRetrying(int parent, const std::string& relative, bool isSingle, std::error_code& error);
    int install(WalkFolder& folder, int descriptor);
    int release(WalkFolder& folder, Keep keep);
    void closeKept(std::size_t remaining);
    void link(WalkFolder& folder) noexcept;
    void unlink(WalkFolder& folder) noexcept;

    std::mutex m_mutex;
    WalkFolder* m_oldest = nullptr; // Of those open and not in use.
    WalkFolder* m_newest = nullptr;
    std::size_t m_kept = 0;
    std::size_t m_limit;
};

} // namespace Korvane
