// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Platform/FileDescriptor.h"
#include "Platform/Files/ItemPlace.h"

#include <filesystem>
#include <memory>
#include <string>

namespace Korvane {

/// One folder of the freedesktop.org Trash, version 1.0, open for moving things into it.
struct FreedesktopTrash {
    std::filesystem::path path;
    FileDescriptor folder;
    FileDescriptor files;
    FileDescriptor info;
    EntryStatus filesStatus; ///< Of "files" and "info"; only filled in for a Trash that is kept open.
    EntryStatus infoStatus;
    std::string recordedPath; ///< What the record of the item says it was, for this folder.
};

/// The Trash of the home folder, made when it is not there; nothing when the item is on another volume or mount than
/// it. Throws FileError, also when the item holds it.
///
/// `kept` is the one of the item before, or nothing; it is taken when its folders are still what would be opened.
std::shared_ptr<FreedesktopTrash> openHomeTrash(
    const ItemPlace& item, const Environment& environment, std::shared_ptr<FreedesktopTrash>& kept);

/// The Trash at the top of the volume that the item is on: ".Trash/$uid" where an administrator prepared ".Trash",
/// else ".Trash-$uid", made when it is not there. Throws FileError, also when it is not this user's own.
FreedesktopTrash openVolumeTrash(const ItemPlace& item);

/// Moves the item there, its record first, and returns where it lies now. Throws FileError and leaves all as it was.
std::filesystem::path moveToTrash(const ItemPlace& item, const FreedesktopTrash& trash);

} // namespace Korvane
