// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace Korvane {

/// UTF-8 text without the blanks and line ends at both its ends: the tabulator, what Unicode 15 calls separators, and
/// the controls that end a line (U+000A to U+000D, U+0085). A view of the argument. Any thread.
std::string_view trimmedText(std::string_view text) noexcept;

} // namespace Korvane
