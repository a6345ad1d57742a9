// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Cancellation.h"

#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// Whether `part` occurs in `text`, both UTF-8, as a person who reads the user's language sees it: case does not count,
/// accents do, and composed and decomposed letters are the same.
///
/// What stands there letter by letter is found, and what ICU's string search finds with the collation of the user's
/// locale at its secondary strength: in Danish "aa" in "å". An empty part, or one of nothing that collation sees,
/// occurs in everything. Bytes that are not UTF-8 count as U+FFFD. Any thread.
bool localizedCaseInsensitiveContains(std::string_view text, std::string_view part);

/// The same for a reader of another language; `locale` is named as ICU does ("de_DE", "tr").
bool localizedCaseInsensitiveContains(std::string_view text, std::string_view part, const std::string& locale);

/// For each text bytes that order as the texts do for a person who reads the user's language: case does not count,
/// accents do. Texts that differ in nothing else have equal bytes. Linear in the length of all texts. Any thread.
/// Throws CancellationError; asked before each text.
std::vector<std::string> localizedCaseInsensitiveKeys(
    const std::vector<std::string_view>& texts, const Cancellation& cancellation = {});

/// The same for a reader of another language.
std::vector<std::string> localizedCaseInsensitiveKeys(
    const std::vector<std::string_view>& texts, const std::string& locale, const Cancellation& cancellation = {});

} // namespace Korvane
