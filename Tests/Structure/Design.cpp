// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/Design.h"

#include <algorithm>
#include <array>
#include <regex>
#include <string>

namespace Korvane::Structure {

namespace {

bool statesDesign(const SourceText& file)
{
    return file.path == "UI/Theme.qml" || file.path == "UI/Design/Metrics.qml" || file.room() != "UI" || !file.isQml();
}

bool isControl(const SourceText& file) { return file.path.parent_path() == "UI/Controls"; }

/// Without strings and comments, whose numbers are no sizes.
std::string withoutTexts(const std::string& line)
{
    static const std::regex text(R"re("(?:[^"\\]|\\.)*"|//.*)re");
    return std::regex_replace(line, text, "");
}

/// A number that is neither nothing nor half or double of something named; `one` tells whether a whole is free too.
bool statesNumber(const std::string& value, bool one)
{
    static const std::regex number(R"((^|[^\w.#])(\d+(?:\.\d+)?)(?![\w.]))");
    const std::string code = withoutTexts(value);
    for (std::sregex_iterator match(code.begin(), code.end(), number), end; match != end; ++match) {
        const std::string digits = (*match)[2].str();
        const std::string before = match->prefix().str() + (*match)[1].str();
        const std::string after = match->suffix().str();
        static const std::regex factorAfter(R"([*/]\s*$)");
        static const std::regex factorBefore(R"(^\s*\*)");
        static const std::regex comparison(R"([<>=]\s*$)");
        const bool factor = std::regex_search(before, factorAfter) || std::regex_search(after, factorBefore);
        const bool free = digits == "0" || (one && digits == "1") || (factor && (digits == "2" || digits == "3"))
            || (digits == "1"
                && (std::regex_search(before, comparison) || before.ends_with("- ") || before.ends_with("(")));
        if (!free)
            return true;
    }
    return false;
}

/// Numbers that a property of such a name may not state.
struct Look {
    const std::regex names;
    const char* complaint;
    bool wholeIsFree; ///< Whether 1 stands for a whole, or for the least there is.
    bool freeInControls;
};

const Look* lookOf(const std::string& name)
{
    static const std::array looks{
        Look{ std::regex("(pixelSize|pointSize|[lL]etterSpacing)$"), "a size of type of its own", false, false },
        Look{ std::regex("^(.*[rR]adius|around|blur)$"), "a radius of its own", false, false },
        Look{ std::regex("([sS]pacing|[mM]argins?|[pP]adding|border\\.width|gap)$"), "a spacing of its own", false,
            false },
        Look{ std::regex("^(duration|interval)$"), "a duration of its own", false, false },
        Look{ std::regex("^opacity$"), "a strength of its own", true, false },
        Look{ std::regex("^(.*([wW]idth|[hH]eight|[sS]ize|Inset|Offset)|x|y|cacheBuffer)$"), "a size of its own", true,
            true },
    };
    const auto found = std::find_if(
        looks.begin(), looks.end(), [&](const Look& look) { return std::regex_search(name, look.names); });
    return found == looks.end() ? nullptr : &*found;
}

/// What is wrong with the value of a property of this name; empty for nothing.
std::string objection(const std::string& name, const std::string& value, bool control)
{
    static const std::regex colours("([cC]olor|tint|accent|ink|fill)$");
    static const std::regex colour(R"re("(?!transparent")[a-z#][a-zA-Z0-9]*")re");
    static const std::regex made(R"(\bQt\.(rgba|hsla|hsva|lighter|darker|alpha|tint)\()");
    const bool isMade = value.find("Qt.") != std::string::npos && std::regex_search(value, made);
    const bool isNamed
        = value.find('"') != std::string::npos && std::regex_search(name, colours) && std::regex_search(value, colour);
    if (isMade || isNamed)
        return "a colour of its own";
    if (value.find_first_of("0123456789") == std::string::npos)
        return {};
    const Look* look = lookOf(name);
    const bool isStated
        = look != nullptr && !(control && look->freeInControls) && statesNumber(value, look->wholeIsFree);
    return isStated ? look->complaint : "";
}

} // namespace

Complaints checkDesign(const SourceText& file)
{
    if (statesDesign(file))
        return {};
    static const std::regex binding(R"(^\s*(?:(?:readonly |required |default )*property \w+ )?([\w.]+):(?:\s+(.*))?$)");
    static const std::regex goesOn(R"(^\s*[?:+*/&|-])");
    Complaints complaints;
    std::string name;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        std::smatch match;
        std::string value;
        if (!line.empty() && std::regex_match(line, match, binding)) {
            name = match[1].str();
            value = match[2].str();
        } else if (std::regex_search(line, goesOn)) {
            value = line;
        } else {
            name.clear();
            value = line;
        }
        const std::string wrong = objection(name, value, isControl(file));
        if (!wrong.empty())
            complaints.push_back(file.path.generic_string() + ":" + std::to_string(i + 1) + ": " + wrong + ": " + line);
    }
    return complaints;
}

} // namespace Korvane::Structure
