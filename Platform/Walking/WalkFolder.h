// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Walking/WalkFolderReference.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

namespace Korvane {

class DescriptorCache;

/// A folder of a walk: its name and the folder that holds it, so that no path is kept or copied per entry.
///
/// Shared by reference count between the threads of a walk. What changes belongs to the walk's DescriptorCache.
class WalkFolder final {
public:
    /// The folder where a walk begins, by its path as it was given.
    static WalkFolderReference makeRoot(DescriptorCache& cache, std::string path);
    static WalkFolderReference makeChild(WalkFolderReference parent, std::string_view name);

    WalkFolder(const WalkFolder&) = delete;
    WalkFolder& operator=(const WalkFolder&) = delete;

    /// The last path component; of the root its whole path.
    const std::string& name() const noexcept { return m_name; }
    const WalkFolder* parent() const noexcept { return m_parent.get(); }

    /// How many folders lie between the root and what this folder holds: 0 for the root.
    std::uint32_t depth() const noexcept { return m_depth; }

    /// The root's path and every name below it, joined by "/".
    std::string path() const;
    /// The path of an entry of this folder.
    std::string childPath(std::string_view name) const;

private:
    friend class WalkFolderReference;
    friend class DescriptorCache;

    WalkFolder(DescriptorCache& cache, WalkFolderReference parent, std::string name, std::uint32_t depth);
    ~WalkFolder();

    std::atomic<std::uint32_t> m_references{ 0 };
    std::uint32_t m_depth;
    WalkFolderReference m_parent;
    std::string m_name;
    DescriptorCache& m_cache;

    // Guarded by the cache: the open descriptor, who uses it now, the neighbours among those kept open for later,
    // and where its listing goes on when it has to be opened again.
    int m_descriptor = -1;
    std::uint32_t m_pins = 0;
    WalkFolder* m_older = nullptr;
    WalkFolder* m_newer = nullptr;
    std::int64_t m_position = 0;
};

} // namespace Korvane
