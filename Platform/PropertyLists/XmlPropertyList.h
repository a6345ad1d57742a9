// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyLists/PropertyListStore.h"

#include <optional>
#include <string_view>

namespace Korvane {

/// Reads an XML property list ("PropertyList-1.0.dtd"); nothing when it is malformed in any part. `bytes` are no more
/// than PropertyList::largestSize; UTF-8, UTF-16 and ISO 8859-1 are understood.
std::optional<PropertyListStore> parseXmlPropertyList(std::string_view bytes);

} // namespace Korvane
