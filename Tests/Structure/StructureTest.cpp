// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/Includes.h"
#include "Tests/Structure/Rules.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

namespace Korvane::Structure {

namespace {

const std::filesystem::path root = KORVANE_SOURCE_DIRECTORY;

} // namespace

TEST(Structure, ReadsFilesOfEveryFloor)
{
    const std::vector<SourceText> files = readProject(root);
    for (const char* room : { "App", "CLI", "Core", "Platform", "Tests", "UI", "cmake", "scripts" }) {
        EXPECT_TRUE(std::any_of(files.begin(), files.end(), [&](const auto& file) { return file.room() == room; }))
            << "no file read in " << room;
    }
}

TEST(Structure, EveryFileKeepsToTheHouse)
{
    for (const SourceText& file : readProject(root)) {
        for (const std::string& complaint : check(file)) {
            ADD_FAILURE() << complaint;
        }
    }
}

// Sources of the other system are not compiled here, so the compiler alone would not notice.
TEST(Structure, EveryIncludeOfTheProjectExists)
{
    for (const SourceText& file : readProject(root)) {
        for (const Include& include : includesOf(file)) {
            if (include.isQuoted && !include.isGenerated()) {
                EXPECT_TRUE(std::filesystem::exists(root / include.target)
                    || std::filesystem::exists(root / (include.target + ".in")))
                    << file.path << ": " << include.target;
            }
        }
    }
}

// Two types of one name in two headers: the linker would take the functions of one for those of the other.
TEST(Structure, EveryTypeIsDefinedInOneHeader)
{
    static const std::regex definition(R"(^(?:class|struct|enum class) (\w+)(?: final)?(?: : [^;]*)?(?: \{.*)?$)");
    const std::set<std::string> outbuildings{ "Benchmarks", "Tests" };
    std::map<std::string, std::filesystem::path> headers;
    for (const SourceText& file : readProject(root)) {
        if (!file.isHeader() || outbuildings.contains(file.room()))
            continue;
        for (const std::string& line : file.lines) {
            std::smatch match;
            if (!std::regex_match(line, match, definition))
                continue;
            const auto [known, isNew] = headers.emplace(match[1].str(), file.path);
            EXPECT_TRUE(isNew) << match[1].str() << " in " << known->second << " and in " << file.path;
        }
    }
    EXPECT_TRUE(
        headers.contains("ScanItem") && headers.contains("FolderCache") && headers.contains("LargeFilesScanner"));
}

} // namespace Korvane::Structure
