// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/Includes.h"
#include "Tests/Structure/Rules.h"

#include <algorithm>
#include <gtest/gtest.h>

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

} // namespace Korvane::Structure
