// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/Rules.h"

#include "Tests/Structure/Design.h"
#include "Tests/Structure/Includes.h"

#include <algorithm>
#include <map>
#include <optional>
#include <regex>

namespace Korvane::Structure {

namespace {

std::string complaint(const SourceText& file, std::size_t line, const std::string& reason)
{
    return file.path.generic_string() + ":" + std::to_string(line) + ": " + reason;
}

/// The floors of the house, counted from the ground; outbuildings (Tests, Benchmarks) have none.
std::optional<int> floorOf(const std::string& room)
{
    static const std::map<std::string, int> floors{ { "Platform", 1 }, { "Core", 2 }, { "UI", 3 }, { "CLI", 3 },
        { "App", 4 } };
    const auto found = floors.find(room);
    return found == floors.end() ? std::nullopt : std::optional(found->second);
}

bool mayKnow(const std::string& room, const std::string& other)
{
    const std::optional<int> from = floorOf(room);
    const std::optional<int> to = floorOf(other);
    if (room == other || !from) {
        return true;
    }
    return to && *to < *from && !(room == "App" && other == "CLI");
}

/// Complains of every line that matches.
Complaints checkLines(const SourceText& file, const std::regex& pattern, const std::string& reason)
{
    Complaints complaints;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (std::regex_search(file.lines[i], pattern)) {
            complaints.push_back(complaint(file, i + 1, reason + ": " + file.lines[i]));
        }
    }
    return complaints;
}

bool isCode(const SourceText& file) { return file.isHeader() || file.isSource(); }

std::optional<std::size_t> longestAllowed(const SourceText& file)
{
    if (file.isHeader()) {
        return 120;
    }
    if (file.isSource()) {
        return 300;
    }
    return file.isQml() ? std::optional<std::size_t>(200) : std::nullopt;
}

bool isTableRow(const std::string& line)
{
    static const std::regex row(R"(^\s*(//.*|\{.*\},?|".*",?)$)");
    return std::regex_match(line, row);
}

/// A function's body stands between two braces that open and close at the margin, as the formatter lays them. The
/// rows of a table, and what is said about them, are data and do not count.
Complaints checkFunctionLengths(const SourceText& file)
{
    constexpr std::size_t longest = 40;
    Complaints complaints;
    std::size_t opened = 0; // the line of the brace, counted from 1; 0 outside functions
    std::size_t length = 0;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (file.lines[i] == "{") {
            opened = i + 1;
            length = 0;
        } else if (file.lines[i] == "}" && opened > 0) {
            if (length > longest) {
                complaints.push_back(complaint(file, opened, "a function of " + std::to_string(length) + " lines"));
            }
            opened = 0;
        } else if (!isTableRow(file.lines[i])) {
            ++length;
        }
    }
    return complaints;
}

} // namespace

Complaints checkFloors(const SourceText& file)
{
    Complaints complaints;
    for (const Include& include : includesOf(file)) {
        const bool isRooted = include.target.find('/') != std::string::npos && !include.target.starts_with(".");
        if (!include.isQuoted || include.isGenerated()) {
            continue;
        }
        if (!isRooted) {
            complaints.push_back(complaint(file, include.line, "include not rooted at the project: " + include.target));
        } else if (!mayKnow(file.room(), include.target.substr(0, include.target.find('/')))) {
            complaints.push_back(complaint(file, include.line, "arrow to a floor not below: " + include.target));
        }
    }
    return complaints;
}

Complaints checkPurity(const SourceText& file)
{
    const bool mustBePure = file.room() == "Core" || (file.room() == "Platform" && file.isHeader());
    Complaints complaints;
    if (!mustBePure) {
        return complaints;
    }
    for (const Include& include : includesOf(file)) {
        if (!include.isQuoted && !include.isStandardLibrary()) {
            complaints.push_back(complaint(file, include.line, "not the C++ standard library: " + include.target));
        }
    }
    return complaints;
}

Complaints checkQml(const SourceText& file)
{
    if (!file.isQml()) {
        return {};
    }
    Complaints complaints;
    if (file.room() != "UI" && file.room() != "Tests") {
        complaints.push_back(complaint(file, 1, "QML outside UI"));
    }
    static const std::regex pragma(R"(^pragma ComponentBehavior: Bound\s*$)");
    if (std::none_of(file.lines.begin(), file.lines.end(),
            [](const std::string& line) { return std::regex_search(line, pragma); })) {
        complaints.push_back(complaint(file, 1, "no pragma ComponentBehavior: Bound"));
    }
    static const std::regex foreign(
        R"(^\s*import\s+(?!QtQuick\b|QtQml\b|QtTest\b|Korvane\.UI\b|Qt\.labs\.qmlmodels\b))");
    const Complaints imports = checkLines(file, foreign, "import of neither Qt nor Korvane.UI");
    complaints.insert(complaints.end(), imports.begin(), imports.end());
    return complaints;
}

Complaints checkPlatformSeam(const SourceText& file)
{
    Complaints complaints;
    if (!isCode(file)) {
        return complaints;
    }
    if (file.path.extension() == ".mm" && !file.path.stem().string().ends_with("MacOS")) {
        complaints.push_back(complaint(file, 1, "Objective-C++ outside *MacOS.mm"));
    }
    static const std::regex objectiveC(
        R"(^\s*(#\s*import\b|@(interface|implementation|autoreleasepool|protocol|class)\b))");
    if (file.path.extension() != ".mm") {
        complaints = checkLines(file, objectiveC, "Objective-C++ outside *MacOS.mm");
    }
    if (!floorOf(file.room())) {
        return complaints;
    }
    static const std::regex system(R"(^\s*#\s*(if|ifdef|ifndef|elif)\b.*(__APPLE__|__linux__|__MACH__|_WIN32|Q_OS_))");
    const Complaints asked = checkLines(file, system, "the system is chosen by the build, not the preprocessor");
    complaints.insert(complaints.end(), asked.begin(), asked.end());
    static const std::regex macros(R"(::sig(add|del|empty|fill)set\b|::sigismember\b)");
    if (!file.path.stem().string().ends_with("Linux")) {
        const Complaints written = checkLines(file, macros, "a macro on macOS, where no \"::\" may stand before it");
        complaints.insert(complaints.end(), written.begin(), written.end());
    }
    return complaints;
}

Complaints checkRemoving(const SourceText& file)
{
    const std::optional<int> floor = floorOf(file.room());
    if (!isCode(file) || !floor || *floor == 1) {
        return {};
    }
    static const std::regex removing(
        R"(\b(remove_all|removeRecursively|moveToTrash|unlink|unlinkat|rmdir|renameat2?)\s*\()"
        R"(|(filesystem|QFile|QDir)::(remove|rename|rmdir)\s*\()");
    return checkLines(file, removing, "removes or moves past FileManager");
}

Complaints checkLicence(const SourceText& file)
{
    const auto says = [&](const std::string& text) {
        const auto end = file.lines.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(5, file.lines.size()));
        return std::any_of(file.lines.begin(), end, [&](const std::string& line) { return line.ends_with(text); });
    };
    // Written in two halves, so that licence tools do not take the patterns for statements about this file.
    if (says(std::string("SPDX-FileCopyrightText: ") + "2026 The Korvane authors")
        && says(std::string("SPDX-License-Identifier: ") + "GPL-3.0-or-later")) {
        return {};
    }
    return { complaint(file, 1, "SPDX lines missing") };
}

Complaints checkLengths(const SourceText& file)
{
    Complaints complaints = isCode(file) ? checkFunctionLengths(file) : Complaints();
    const std::optional<std::size_t> longest = longestAllowed(file);
    if (longest && file.lines.size() > *longest) {
        complaints.push_back(
            complaint(file, 1, std::to_string(file.lines.size()) + " lines, at most " + std::to_string(*longest)));
    }
    return complaints;
}

Complaints check(const SourceText& file)
{
    Complaints all;
    for (const auto& rule :
        { checkFloors, checkPurity, checkQml, checkPlatformSeam, checkRemoving, checkLicence, checkLengths,
             checkDesign }) {
        const Complaints some = rule(file);
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

} // namespace Korvane::Structure
