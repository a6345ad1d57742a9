// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace Korvane {

class WalkFolder;

/// What kind of thing a directory entry names; a link is a link, whatever it points to.
enum class EntryType : std::uint8_t { Unknown, RegularFile, Directory, SymbolicLink, Other };

/// Values of one file or folder, read without opening it. Absent: not asked for, or the platform could not tell.
struct ResourceValues {
    std::optional<std::int64_t> totalFileAllocatedSize; ///< Bytes that the file occupies on its volume.
    std::optional<std::int64_t> fileSize; ///< Logical length in bytes.
    std::optional<std::chrono::sys_time<std::chrono::nanoseconds>> contentModificationDate;
};

/// One entry of a walk. Lives as long as the enumerator says; paths are made only when asked for.
class DirectoryEntry {
public:
    /// The last path component, as bytes.
    std::string_view name() const noexcept { return m_name; }
    EntryType type() const noexcept { return m_type; }

    /// Whether the folder is one that the platform shows as a single file: by its extension (see
    /// Platform/PackageExtensions.h) or, on macOS, by its Finder information.
    bool isPackage() const noexcept { return m_isPackage; }

    /// False when the values that were asked for could not be read; the entry then has a name and nothing else.
    bool hasValues() const noexcept { return m_hasValues; }
    const ResourceValues& values() const noexcept { return m_values; }

    /// How many regular files this entry stands for that the walk's options pass over, all in one folder; it then has
    /// no name, no path and no values. 0 for an entry that is delivered.
    std::uint32_t passedOver() const noexcept { return m_passedOver; }

    /// The whole path: the walk's root as it was given, and every name below it.
    std::filesystem::path path() const;
    /// The path of the folder that holds this entry.
    std::filesystem::path parentPath() const;
    /// How many folders lie between the walk's root and this entry: 0 for the root's own children.
    std::size_t depth() const noexcept;

private:
    friend class DirectoryEnumerator;

    std::string_view m_name;
    const WalkFolder* m_folder = nullptr;
    ResourceValues m_values;
    std::uint32_t m_passedOver = 0;
    EntryType m_type = EntryType::Unknown;
    bool m_isPackage = false;
    bool m_hasValues = false;
};

} // namespace Korvane
