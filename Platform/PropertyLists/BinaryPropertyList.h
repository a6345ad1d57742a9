// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyLists/PropertyListStore.h"

#include <optional>
#include <string_view>

namespace Korvane {

/// Whether these bytes begin as a binary property list of version 0 does.
bool isBinaryPropertyList(std::string_view bytes) noexcept;

/// Reads a binary property list ("bplist00", as CoreFoundation's CFBinaryPList.c describes it); nothing when any
/// object, used or not, is malformed. `bytes` are no more than PropertyList::largestSize.
///
/// Objects are read where the offset table says, one after the other. Together they may take no more bytes than the
/// file has for them, so that ten thousand offsets of one large array cost no more than a sound file.
std::optional<PropertyListStore> parseBinaryPropertyList(std::string_view bytes);

} // namespace Korvane
