// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/AfcStandInRules.h"

#include <algorithm>
#include <fstream>

namespace Korvane {

namespace {

/// Calls the function with each of the texts, in the order in which the file has them.
template <typename Rules, typename Function> void forEachText(Rules& rules, Function function)
{
    for (auto* text : { &rules.style, &rules.reading, &rules.hangs, &rules.hangsBehind, &rules.dies, &rules.leaves,
             &rules.breaks, &rules.ignores, &rules.complains, &rules.keeps, &rules.rival, &rules.refusal,
             &rules.breakage, &rules.denies })
        function(*text);
}

template <typename Rules, typename Function> void forEachSwitch(Rules& rules, Function function)
{
    for (auto* isOn : { &rules.deniesByPath, &rules.overwrites, &rules.empties, &rules.sweeps })
        function(*isOn);
}

bool isQuote(char character) { return character == '"' || character == '\''; }

bool isDropped(char character)
{
    return isQuote(character) || character == '\\' || static_cast<unsigned char>(character) > 127;
}

} // namespace

AfcStandInRules AfcStandInRules::read(const std::filesystem::path& file)
{
    AfcStandInRules rules;
    std::ifstream lines(file, std::ios::binary);
    std::string device, log, begun, flood;
    for (auto* line : { &device, &log, &begun, &flood })
        std::getline(lines, *line);
    forEachSwitch(rules, [&](bool& isOn) {
        std::string line;
        isOn = std::getline(lines, line) && line == "1";
    });
    forEachText(rules, [&](std::string& text) { std::getline(lines, text); });
    rules.device = device;
    rules.log = log;
    rules.begun = begun;
    rules.flood = std::stoul(flood);
    return rules;
}

void AfcStandInRules::write(const std::filesystem::path& file) const
{
    std::ofstream lines(file, std::ios::binary);
    lines << device.native() << "\n" << log.native() << "\n" << begun.native() << "\n";
    lines << flood << "\n";
    forEachSwitch(*this, [&](bool isOn) { lines << (isOn ? 1 : 0) << "\n"; });
    forEachText(*this, [&](const std::string& text) { lines << text << "\n"; });
}

std::vector<std::string> AfcStandInRules::words(const std::string& text) const
{
    if (reading == "line") {
        const auto second = text.rfind(" /");
        if (second == std::string::npos)
            return { text };
        return { text.substr(0, second), text.substr(second + 1) };
    }
    std::vector<std::string> words(1);
    bool isQuoted = false;
    for (const char character : text) {
        if (reading == "quotes" && isQuote(character))
            isQuoted = !isQuoted;
        if (character == ' ' && !isQuoted && !words.back().empty())
            words.emplace_back();
        else if ((character != ' ' || isQuoted) && !isDropped(character))
            words.back() += character;
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

} // namespace Korvane
