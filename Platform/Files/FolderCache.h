// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/DoomedFolder.h"

#include <cstddef>
#include <list>
#include <memory>
#include <mutex>

namespace Korvane {

/// The open folders of one removal: never more than a fixed number, however deep the tree.
///
/// Folders put aside to make room are opened again when needed, from the folder above or from one below, and only
/// accepted when they are the very folders they were. Any thread may call any member; members return 0 or an errno.
class FolderCache {
public:
    using Lease = std::shared_ptr<OpenFolder>;

    explicit FolderCache(std::size_t capacity)
        : m_capacity(capacity)
    {
    }

    /// Opens the folder for the first time, by its name in its parent, and fills in its status.
    int openFirst(DoomedFolder& folder, Lease& lease);

    /// An open folder that was opened before. `below` is a folder in it, a short way up when it was put aside.
    int acquire(DoomedFolder& folder, Lease& lease, const OpenFolder* below = nullptr);

    /// Closes the folder as soon as nobody uses it any more.
    void drop(DoomedFolder& folder);

    /// Holds a folder open for good, beside the fixed number.
    void pin(DoomedFolder& folder, Lease lease);

private:
    int open(int parent, const char* name, Lease& lease);
    int reopenFromBelow(DoomedFolder& folder, const OpenFolder& below, Lease& lease);
    int reopenFromAbove(DoomedFolder& folder, Lease& lease);
    void keep(DoomedFolder& folder, Lease& lease);
    void putAside(std::size_t leave);

    const std::size_t m_capacity;
    std::mutex m_mutex;
    std::list<DoomedFolder*> m_open; ///< The one opened longest ago first.
};

} // namespace Korvane
