// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// The entry names in what "afcclient" printed for a listing, in its order, as bytes.
std::vector<std::string> parseNames(std::string_view output);

/// Whether the text holds a control character: below U+0020, U+007F, or one of U+0080 to U+009F.
bool holdsControlCharacter(std::string_view text);

/// The names among these that can be names: none that is empty, "." or "..", that still holds a control character or a
/// "/", or that equals one of the commands of the script just sent, which the tool may echo.
std::vector<std::string> credibleNames(std::vector<std::string> names, const std::vector<std::string>& commands);

/// Whether a listing would show a file of this name under this name, so that not seeing it means that it is gone.
bool isListedAsItself(std::string_view name);

} // namespace Korvane
