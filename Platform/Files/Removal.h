// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileError.h"
#include "Platform/Files/ItemPlace.h"

#include <optional>

namespace Korvane {

/// Deletes the item for good, with all it holds when it is a folder; the first error when it could not.
///
/// Checks nothing beforehand: that is ProtectedPlaces' part.
std::optional<FileError> removeForGood(const ItemPlace& item);

} // namespace Korvane
