// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcAnswer.h"

#include "Platform/DisplayText.h"
#include "Platform/TrimmedText.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace Korvane {

namespace {

constexpr std::string_view errorBeginning = "Error: ";

/// What the tool prints before it reads a command, in both builds in use: "afc:" and the folder that it works in, each
/// in its colours, and then ">", with or without a blank before it. What stands behind that is left out, for a line may
/// have lost it.
constexpr std::string_view promptBeginning = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m";
constexpr std::string_view endOfColours = "\x1b[m";

/// Where the prompt ends that begins here, behind its ">"; nothing when none begins.
std::optional<std::size_t> promptEnd(std::string_view text, std::size_t begin)
{
    const auto folderEnd = text.find_first_of("\x1b\r\n", begin + promptBeginning.size());
    if (folderEnd == std::string_view::npos || !text.substr(folderEnd).starts_with(endOfColours))
        return std::nullopt;
    const auto last = text.find_first_not_of(" \t", folderEnd + endOfColours.size());
    if (last == std::string_view::npos || text[last] != '>')
        return std::nullopt;
    return last + 1;
}

/// Where the first prompt from here on ends.
std::optional<std::size_t> findPromptEnd(std::string_view text, std::size_t from)
{
    for (auto begin = text.find(promptBeginning, from); begin != std::string_view::npos;
         begin = text.find(promptBeginning, begin + 1)) {
        if (const auto end = promptEnd(text, begin))
            return end;
    }
    return std::nullopt;
}

/// What stands before a line: progress is written over itself, each time behind a carriage return.
enum class Before { LineFeed, CarriageReturn };

/// Whether what precedes an error in its line is nothing, a prompt, or how much of a file has come:
/// "22% (427.5 MB/s)   ".
bool mayPrecedeError(std::string_view text, Before before)
{
    const auto last = text.find_last_not_of(" \t");
    if (last == std::string_view::npos || text[last] == '>')
        return true;
    return before == Before::CarriageReturn && (text[last] == ')' || text[last] == '%');
}

/// Appends the error that a line tells of, if it does.
void appendError(std::vector<std::string>& errors, std::string_view line, Before before)
{
    for (auto begin = line.find(errorBeginning); begin != std::string_view::npos;
         begin = line.find(errorBeginning, begin + 1)) {
        if (mayPrecedeError(line.substr(0, begin), before)) {
            errors.emplace_back(line.substr(begin + errorBeginning.size()));
            return;
        }
    }
}

/// The text with each occurrence of the other one left out, from the front; an empty one occurs nowhere.
std::string without(std::string_view text, std::string_view unwanted)
{
    std::string rest;
    while (!unwanted.empty()) {
        const auto begin = text.find(unwanted);
        if (begin == std::string_view::npos)
            break;
        rest += text.substr(0, begin);
        text.remove_prefix(begin + unwanted.size());
    }
    return rest += text;
}

} // namespace

AfcAnswer::AfcAnswer(std::string output, Ending ending)
    : m_output(std::move(output))
    , m_ending(ending)
{
}

std::string_view AfcAnswer::text() const { return isText() ? std::string_view(m_output) : std::string_view(); }

bool AfcAnswer::isText() const { return isValidUtf8(m_output); }

std::vector<std::string> AfcAnswer::errors() const
{
    std::vector<std::string> errors;
    std::string_view rest = m_output;
    auto before = Before::LineFeed;
    while (!rest.empty()) {
        const auto end = std::min(rest.find_first_of("\r\n"), rest.size());
        appendError(errors, rest.substr(0, end), before);
        before = end < rest.size() && rest[end] == '\r' ? Before::CarriageReturn : Before::LineFeed;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return errors;
}

std::vector<std::string> AfcAnswer::errorsWithout(std::vector<std::string> texts) const
{
    // A text that holds another has to go first.
    std::sort(texts.begin(), texts.end(), [](const auto& one, const auto& other) { return one.size() > other.size(); });
    auto errors = this->errors();
    for (auto& error : errors) {
        for (const auto& text : texts)
            error = without(error, text);
    }
    return errors;
}

bool AfcAnswer::hasPrompt() const { return findPromptEnd(m_output, 0).has_value(); }

bool AfcAnswer::showsProgress() const
{
    for (auto begin = m_output.find('\r'); begin != std::string::npos; begin = m_output.find('\r', begin + 1)) {
        const auto end = m_output.find_first_not_of("0123456789", begin + 1);
        if (end != std::string::npos && end > begin + 1 && m_output[end] == '%')
            return true;
    }
    return false;
}

bool AfcAnswer::isWhole() const
{
    const bool endedByItself = m_ending == Ending::Calm || m_ending == Ending::Speechless;
    return endedByItself && (!hasPrompt() || endsAtPrompt());
}

bool AfcAnswer::endsAtPrompt() const
{
    std::size_t prompts = 0, end = 0;
    for (auto next = findPromptEnd(m_output, 0); next; next = findPromptEnd(m_output, end)) {
        ++prompts;
        end = *next;
    }
    if (prompts < 2)
        return false;
    const auto behind = trimmedText(std::string_view(m_output).substr(end));
    return behind.empty() || behind == "quit";
}

} // namespace Korvane
