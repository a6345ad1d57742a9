// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"
#include "Platform/Files/EntryStatus.h"

#include <filesystem>
#include <string>

namespace Korvane {

/// One item found by its path and from then on held by the folder it lies in.
struct ItemPlace {
    std::filesystem::path path; ///< As given, without slashes at the end.
    std::string name; ///< The last part of the path.
    FileDescriptor parent; ///< Good for reaching the item and for nothing else.
    EntryStatus parentStatus;
    EntryStatus status; ///< Of the item itself; a link is not followed.
};

/// The path without slashes at its end.
///
/// Throws FileError for a path that cannot name an item: empty, relative, with a NUL, "/", or ending in "." or "..".
std::filesystem::path itemPath(const std::filesystem::path& path);

/// Finds the item. Throws FileError when there is none, or when itemPath does.
ItemPlace findItem(const std::filesystem::path& path);

} // namespace Korvane
