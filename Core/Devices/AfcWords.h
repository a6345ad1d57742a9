// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// The words that some build of "afcclient" may make of the text behind a command, each once.
///
/// The builds in use split it at blanks, take quotes and backslashes away and drop bytes above 127; one that keeps any
/// of these, or keeps together what is quoted, be it closed by the same quote or by any, is reckoned with as well. A
/// text of one plain word is that word.
std::vector<std::string> possibleWords(std::string_view text);

/// Whether every build takes the text for the one word that it is: ASCII without blanks, quotes, backslashes and
/// control characters.
bool isPlainWord(std::string_view text);

} // namespace Korvane
