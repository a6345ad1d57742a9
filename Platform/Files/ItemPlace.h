// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"
#include "Platform/Files/EntryStatus.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace Korvane {

/// One item found by its path and from then on held by the folder it lies in.
struct ItemPlace {
    std::string path; ///< As given, without slashes at the end.
    std::string name; ///< The last part of the path.
    FileDescriptor parent; ///< Good for reaching the item and for nothing else.
    EntryStatus parentStatus;
    EntryStatus status; ///< Of the item itself; a link is not followed.
};

/// The path without slashes at its end.
///
/// Throws FileError for a path that cannot name an item: empty, relative, with a NUL, "/", or ending in "." or "..".
std::string itemPath(const std::filesystem::path& path);

/// Whether a full path has no "." and no "..", no empty part and no slash at its end: what it names is its text.
bool isPlainPath(std::string_view path);

/// A folder kept open from one item that lay in it to the next.
struct KeptFolder {
    std::string path; ///< How it was reached, with a slash at the end; empty when nothing is kept.
    FileDescriptor folder;
    EntryStatus status; ///< When it was opened.
};

/// Finds the item. Throws FileError when there is none, or when itemPath does.
///
/// `kept` is used in place of opening the folder that the item lies in when its path still leads to that very folder.
ItemPlace findItem(const std::filesystem::path& path, KeptFolder kept = {});

/// Keeps the folder that the item lies in, and leaves the item without it.
KeptFolder keepParent(ItemPlace& item);

} // namespace Korvane
