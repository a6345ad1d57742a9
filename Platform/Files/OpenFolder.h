// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"
#include "Platform/Files/EntryBatch.h"
#include "Platform/Files/EntryStatus.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace Korvane {

/// A folder held by a descriptor: whatever happens to its name meanwhile, it stays the same folder.
///
/// Members return 0 or an errno. One thread may read entries at a time; the descriptor may be used by any.
class OpenFolder {
public:
    explicit OpenFolder(FileDescriptor descriptor) noexcept;
    ~OpenFolder();
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;

    int descriptor() const noexcept { return m_descriptor.get(); }

    /// The next entries in the order of the file system; an empty batch at the end.
    int read(EntryBatch& batch);

    /// Starts over with the first entry.
    int rewind();

private:
    FileDescriptor m_descriptor;
    struct Stream;
    std::unique_ptr<Stream> m_stream;
};

/// Opens the folder `name` in `parent` for reading. A link to a folder is ENOTDIR or ELOOP unless links are followed.
int openFolder(int parent, const char* name, Links links, FileDescriptor& folder) noexcept;

/// Opens a folder only to reach what it holds, which the permission to search it is enough for.
int openForTraversal(int parent, const char* name, Links links, FileDescriptor& folder) noexcept;

/// The same for a full path of any length, links followed: past PATH_MAX it is walked in pieces.
int openForTraversal(std::string_view path, FileDescriptor& folder);

/// Gives the folder `name`, which cannot be opened for want of permissions, these ones. ENOENT when what is found there
/// is not `identity`, so that no other folder is changed.
int changeModeOfClosedFolder(int parent, const char* name, const EntryIdentity& identity, std::uint32_t mode) noexcept;

} // namespace Korvane
