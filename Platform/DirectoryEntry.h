// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace Korvane {

/// What kind of thing a directory entry names; a link is a link, whatever it points to.
enum class EntryType { Unknown, RegularFile, Directory, SymbolicLink, Other };

/// Values of one file or folder, read without opening it. Absent: not asked for, or the platform could not tell.
struct ResourceValues {
    std::optional<std::int64_t> totalFileAllocatedSize; ///< Bytes that the file occupies on its volume.
    std::optional<std::int64_t> fileSize;               ///< Logical length in bytes.
    std::optional<std::chrono::sys_time<std::chrono::nanoseconds>> contentModificationDate;
};

/// One entry of a walk. Lives as long as the enumerator says; paths are made only when asked for.
class DirectoryEntry {
public:
    virtual ~DirectoryEntry() = default;

    /// The last path component, as bytes.
    virtual std::string_view name() const = 0;
    virtual EntryType type() const = 0;

    /// Whether the folder is one that the platform shows as a single file (see Platform/PackageExtensions.h).
    virtual bool isPackage() const = 0;

    /// False when the values that were asked for could not be read; the entry then has a name and nothing else.
    virtual bool hasValues() const = 0;
    virtual const ResourceValues& values() const = 0;

    /// The whole path: the walk's root as it was given, and every name below it.
    virtual std::filesystem::path path() const = 0;
    /// The path of the folder that holds this entry.
    virtual std::filesystem::path parentPath() const = 0;
    /// How many folders lie between the walk's root and this entry: 0 for the root's own children.
    virtual std::size_t depth() const = 0;
};

} // namespace Korvane
