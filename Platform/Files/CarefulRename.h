// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/ItemPlace.h"

#include <string>

namespace Korvane {

/// Gives an item another folder and name, never replacing what is there (EEXIST).
///
/// A folder of this user's that may not be written to is opened up for the move, for its ".." changes, and gets its
/// permissions back. 0 when the item is there, whatever the system said on the way; else an errno, and the item is
/// where it was.
int renameCarefully(const ItemPlace& item, int folder, const std::string& name);

/// The same on a file system that cannot refuse to replace: the name is first taken by an empty file or folder.
int renameOntoPlaceholder(const ItemPlace& item, int folder, const std::string& name);

/// Whether what lies there is the item.
bool isItemAt(const ItemPlace& item, int folder, const std::string& name);

} // namespace Korvane
