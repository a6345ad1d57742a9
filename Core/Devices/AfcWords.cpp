// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcWords.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Korvane {

namespace {

bool isBlank(char character) { return character == ' ' || character == '\t'; }
bool isQuote(char character) { return character == '"' || character == '\''; }
bool isBeyondAscii(char character) { return static_cast<unsigned char>(character) > 127; }

/// Whether no build gives the character a meaning or drops it.
bool isPlain(char character) { return character > ' ' && character < 0x7F && !isQuote(character) && character != '\\'; }

template <typename Unwanted> std::string without(std::string text, Unwanted isUnwanted)
{
    text.erase(std::remove_if(text.begin(), text.end(), isUnwanted), text.end());
    return text;
}

std::vector<std::string> splitAtBlanks(std::string_view text)
{
    std::vector<std::string> words(1);
    for (const char character : text) {
        if (isBlank(character))
            words.emplace_back();
        else
            words.back() += character;
    }
    return words;
}

enum class ClosingQuote { Same, Any };
enum class Backslash { Escapes, Plain };

/// Split where no quotes stand around a blank and, where it escapes, no backslash before it.
std::vector<std::string> splitOutsideQuotes(std::string_view text, ClosingQuote closing, Backslash backslash)
{
    std::vector<std::string> words(1);
    char quote = '\0';
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && backslash == Backslash::Escapes && i + 1 < text.size())
            words.back() += text[++i];
        else if (quote == '\0' && isQuote(text[i]))
            quote = text[i];
        else if (quote != '\0' && isQuote(text[i]) && (text[i] == quote || closing == ClosingQuote::Any))
            quote = '\0';
        else if (quote == '\0' && isBlank(text[i]))
            words.emplace_back();
        else
            words.back() += text[i];
    }
    return words;
}

void makeUnique(std::vector<std::string>& texts)
{
    std::sort(texts.begin(), texts.end());
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
}

/// What the builds split the text into, each word once.
std::vector<std::string> distinctWords(std::string_view text)
{
    auto words = splitAtBlanks(text);
    const auto joins = [](char character) { return isQuote(character) || character == '\\'; };
    if (std::any_of(text.begin(), text.end(), joins)) {
        for (const auto closing : { ClosingQuote::Same, ClosingQuote::Any }) {
            for (const auto backslash : { Backslash::Escapes, Backslash::Plain }) {
                auto others = splitOutsideQuotes(text, closing, backslash);
                std::move(others.begin(), others.end(), std::back_inserter(words));
            }
        }
    }
    makeUnique(words);
    return words;
}

/// Appends the word as it is, and with what some builds drop left out.
void appendReadings(std::vector<std::string>& readings, const std::string& word)
{
    if (isPlainWord(word)) {
        readings.push_back(word);
        return;
    }
    const auto unquoted = without(word, isQuote);
    const auto isBackslash = [](char character) { return character == '\\'; };
    for (const auto& reading : { word, unquoted, without(word, isBackslash), without(unquoted, isBackslash) }) {
        readings.push_back(reading);
        readings.push_back(without(reading, isBeyondAscii));
    }
}

} // namespace

std::vector<std::string> possibleWords(std::string_view text)
{
    if (isPlainWord(text))
        return { std::string(text) };
    std::vector<std::string> readings;
    for (const auto& word : distinctWords(text))
        appendReadings(readings, word);
    makeUnique(readings);
    if (!readings.empty() && readings.front().empty())
        readings.erase(readings.begin());
    return readings;
}

bool isPlainWord(std::string_view text) { return !text.empty() && std::all_of(text.begin(), text.end(), isPlain); }

} // namespace Korvane
