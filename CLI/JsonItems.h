// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CLI/JsonWriter.h"
#include "Core/Cleaning/Cleaner.h"
#include "Core/Scanning/ScanItem.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// The member "path"; one that is not UTF-8 is given as it is shown, and exactly as "pathBase64".
void writePath(JsonWriter& json, const std::filesystem::path& path);

/// The members of an item, without the braces around them.
void writeMembers(JsonWriter& json, const ScanItem& item);

/// A text from outside, as it is where it is UTF-8, and otherwise as it is shown.
void writeText(JsonWriter& json, std::string_view text);

/// A member whose value is a text from outside.
void writeMember(JsonWriter& json, std::string_view key, std::string_view text);

/// The same, null when there is no text.
void writeOptional(JsonWriter& json, std::string_view key, const std::optional<std::string>& text);

/// The name of what cleaning does to an item.
std::string_view nameOf(Cleaner::Action action);

} // namespace Korvane
