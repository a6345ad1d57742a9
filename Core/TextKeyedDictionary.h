// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/PropertyListValue.h"

#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The dictionary that a property list of these bytes holds; nothing without bytes, when they are no property list, and
/// when what they hold is no dictionary or has a key that is no text. Any thread.
std::optional<PropertyListValue> textKeyedDictionary(const std::optional<std::string>& bytes);

/// The text under a key of a dictionary; nothing when there is none, or no text. Any thread.
std::optional<std::string> textIn(const PropertyListValue& dictionary, std::string_view key);

} // namespace Korvane
