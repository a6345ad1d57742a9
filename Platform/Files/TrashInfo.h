// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace Korvane {

/// The record that tells where an item of the Trash came from and when: freedesktop.org Trash, version 1.0.
///
/// `path` is the original place as bytes, absolute or relative to the top of the volume; `deleted` is shown as the
/// local time.
std::string trashInfoText(std::string_view path, std::time_t deleted);

/// The bytes with everything but letters, digits, "-", ".", "_", "~" and "/" written as "%" and two digits.
std::string percentEncoded(std::string_view bytes);

/// The name shortened to at most `limit` bytes, not within a character of UTF-8.
std::string shortenedName(std::string_view name, std::size_t limit);

} // namespace Korvane
