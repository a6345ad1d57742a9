// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/PlainFolder.h"

#include "Core/Devices/AfcWords.h"
#include "Tests/Core/Devices/MediaFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"

namespace Korvane {

namespace {

class PlainFolderTest : public MediaFixture {
protected:
    std::filesystem::path made(const std::string& name) const
    {
        std::filesystem::create_directory(home() / name);
        return home() / name;
    }
    void expectHasAPlainPath(const std::string& name)
    {
        const auto folder = made(name);
        {
            const PlainFolder plain(folder, host());
            EXPECT_TRUE(isPlainWord(plain.path().native())) << plain.path();
            EXPECT_TRUE(std::filesystem::equivalent(plain.path(), folder)) << name;
            const auto place = plain.path().parent_path();
            EXPECT_EQ(std::filesystem::status(place).permissions(), std::filesystem::perms::owner_all);
            writeFile(plain.path() / "x", "y");
        }
        EXPECT_EQ(readFile(folder / "x"), "y") << name;
        EXPECT_TRUE(std::filesystem::is_empty(temporary())) << name;
    }
};

} // namespace

TEST_F(PlainFolderTest, PlainPathStaysAsItIs)
{
    const PlainFolder plain(downloads(), host());
    EXPECT_EQ(plain.path(), downloads());
    EXPECT_TRUE(std::filesystem::is_empty(temporary()));
}

TEST_F(PlainFolderTest, OddFolderHasAPlainPathForItsLife)
{
    for (const char* name : { "my photos",
             "T\xC3\xA9l\xC3\xA9"
             "chargements",
             "a'b", "a\"b", "a\\b", "a\nb" })
        expectHasAPlainPath(name);
}

TEST_F(PlainFolderTest, FolderOfAnyBytesHasAPlainPathForItsLife)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    expectHasAPlainPath("\xFF");
}

TEST_F(PlainFolderTest, FolderKeepsItsPathWhereNoOtherCanBeMade)
{
    const auto folder = made("my photos");
    host().environment.temporaryDirectory = folder;
    EXPECT_EQ(PlainFolder(folder, host()).path(), folder);
    lendNoPath();
    EXPECT_EQ(PlainFolder(folder, host()).path(), folder);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(PlainFolderTest, WhatElseHasComeToLieThereStays)
{
    const auto folder = made("my photos");
    writeFile(folder / "mine", "x");
    std::filesystem::path place;
    {
        const PlainFolder plain(folder, host());
        place = plain.path().parent_path();
        writeFile(place / "other", "y");
    }
    EXPECT_EQ(readFile(place / "other"), "y");
    EXPECT_EQ(readFile(folder / "mine"), "x");
    {
        const PlainFolder plain(folder, host());
        place = plain.path().parent_path();
        std::filesystem::rename(plain.path(), place / "moved");
        std::filesystem::create_directory(plain.path());
        writeFile(plain.path() / "inner", "z");
    }
    EXPECT_EQ(readFile(place / "folder/inner"), "z");
}

TEST_F(PlainFolderTest, ToolThatSplitsItsCommandsCopiesIntoAnOddFolder)
{
    tool().add("/DCIM/100APPLE/IMG_1.MOV", "a film");
    const auto folder = made("T\xC3\xA9l\xC3\xA9"
                             "chargements de Zo\xC3\xAB");
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        EXPECT_EQ(exportFailure("/DCIM/100APPLE/IMG_1.MOV", folder), "") << style;
        EXPECT_EQ(readFile(folder / "IMG_1.MOV"), "a film") << style;
        EXPECT_EQ(exportFailure("/DCIM/100APPLE/IMG_1.MOV", folder), "Export failed for IMG_1.MOV") << style;
        EXPECT_EQ(readFile(folder / "IMG_1.MOV"), "a film") << style;
        EXPECT_TRUE(std::filesystem::is_empty(temporary())) << style;
        std::filesystem::remove(folder / "IMG_1.MOV");
    }
}

} // namespace Korvane
