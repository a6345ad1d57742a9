// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Environment.h"
#include "Platform/Files/ItemPlace.h"
#include "Platform/Files/ProtectedPlaces.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace Korvane {

struct FreedesktopTrash;

/// Trash folders that this host keeps besides ".Trash" in the home folder.
std::vector<std::filesystem::path> hostTrashDirectories(const Environment& environment);

/// Moves the item to the host's Trash and returns where it lies now; throws FileError and leaves it where it was.
///
/// `kept` holds what stays open until the next item, always with the same environment; used only while it is what would
/// be opened again. Stays empty where the system opens its Trash itself.
std::filesystem::path moveToHostTrash(
    const ItemPlace& item, const Environment& environment, std::shared_ptr<FreedesktopTrash>& kept);

/// Empties one of hostTrashDirectories(); throws the first FileError.
void emptyHostTrash(const std::filesystem::path& trash, ProtectedPlaces& protectedPlaces);

/// Deletes what lies directly in a folder, in the order of the file system; throws the first FileError.
/// A folder that cannot be listed counts as empty; a link in its place is an error.
void emptyFolder(const std::filesystem::path& folder, ProtectedPlaces& protectedPlaces);

} // namespace Korvane
