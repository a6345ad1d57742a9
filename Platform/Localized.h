// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/TextDirection.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>

namespace Korvane {

/// Gives the text of a key in the language of the program; with a count of 0 or more, its plural form, "%n" replaced.
/// Called on any thread.
using MessageCatalogue = std::function<std::string(const char* context, const char* key, const char* note, int count)>;

/// Sets what `localized` asks, and which way that is written; nothing for the keys themselves, which are English.
/// Before any thread is started.
void setMessageCatalogue(MessageCatalogue catalogue, TextDirection direction = TextDirection::leftToRight);

/// What a person reads for a key: its text in the language of the program. Any thread.
///
/// The keys are collected by Qt's lupdate from where they are used, so that context and key are plain literals there.
std::string localized(const char* context, const char* key);

/// The same for a key that counts something: "%n" becomes the count, 0 or more. The note is for translators.
std::string localized(const char* context, const char* key, const char* note, int count);

/// A count as the function above, and Qt's `tr`, take it; the largest they take for what is larger.
int pluralCount(std::int64_t count);

/// A text with its places "%1" to "%9" filled with the arguments; what an argument holds is not looked at again.
///
/// Where the language of the program is written from right to left, each argument is in an isolate of its own (Unicode
/// Standard Annex 9, FSI and PDI): a size or a path keeps its order there, and the sentence around it keeps its own.
std::string filledIn(const std::string& text, std::initializer_list<std::string> arguments);

} // namespace Korvane
