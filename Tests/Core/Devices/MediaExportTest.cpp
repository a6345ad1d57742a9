// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/AfcClient.h"
#include "Tests/Core/Devices/MediaExportFixture.h"
#include "Tests/Support/OrdinaryUser.h"

namespace Korvane {

namespace {

class MediaExportTest : public MediaExportFixture { };

} // namespace

TEST_F(MediaExportTest, FileArrivesUnderItsNameInOneRun)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        tool().forget();
        EXPECT_EQ(exportFailure(path, downloads()), "") << style;
        EXPECT_EQ(readFile(downloads() / "IMG_1.MOV"), photo) << style;
        const Paths log{ "run -u " + udid, "get " + path + " " + (downloads() / "IMG_1.MOV").native(), "quit" };
        EXPECT_EQ(tool().log(), log) << style;
        std::filesystem::remove(downloads() / "IMG_1.MOV");
    }
    EXPECT_TRUE(tool().has(path));
}

TEST_F(MediaExportTest, FileThatTheDeviceLacksIsAFailure)
{
    for (const auto& style : styles()) {
        change([&](auto& rules) { rules.style = style; });
        expectFailure("/DCIM/100APPLE/IMG_9.MOV", downloads());
    }
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
}

TEST_F(MediaExportTest, ExistingFileStaysWhateverTheToolWouldDo)
{
    for (const bool overwrites : { false, true }) {
        change([&](auto& rules) { rules.overwrites = overwrites; });
        const Sentinel old(downloads() / "IMG_1.MOV");
        expectFailure(path, downloads());
        EXPECT_EQ(old.difference(), "");
    }
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaExportTest, LinksAndFoldersInTheWayStayToo)
{
    change([](auto& rules) { rules.overwrites = true; });
    const Sentinel target(home() / "target");
    std::filesystem::create_symlink(target.path(), downloads() / "IMG_1.MOV");
    expectFailure(path, downloads());
    std::filesystem::remove(downloads() / "IMG_1.MOV");
    std::filesystem::create_symlink(home() / "not there", downloads() / "IMG_1.MOV");
    expectFailure(path, downloads());
    EXPECT_FALSE(std::filesystem::exists(home() / "not there"));
    std::filesystem::remove(downloads() / "IMG_1.MOV");
    std::filesystem::create_directory(downloads() / "IMG_1.MOV");
    expectFailure(path, downloads());
    EXPECT_TRUE(std::filesystem::is_empty(downloads() / "IMG_1.MOV"));
    EXPECT_EQ(target.difference(), "");
}

TEST_F(MediaExportTest, SecondOfTwoFilesWithOneNameFails)
{
    tool().add("/DCIM/101APPLE/IMG_1.MOV", "another");
    EXPECT_EQ(exportFailure(path, downloads()), "");
    expectFailure("/DCIM/101APPLE/IMG_1.MOV", downloads());
    EXPECT_EQ(readFile(downloads() / "IMG_1.MOV"), photo);
}

TEST_F(MediaExportTest, NameWithABlankIsPassedUnquoted)
{
    change([](auto& rules) { rules.reading = "line"; });
    tool().add("/DCIM/100 APPLE/IMG 2.MOV", photo);
    EXPECT_EQ(exportFailure("/DCIM/100 APPLE/IMG 2.MOV", downloads()), "");
    EXPECT_EQ(readFile(downloads() / "IMG 2.MOV"), photo);
    EXPECT_EQ(commands(), (Paths{ "get /DCIM/100 APPLE/IMG 2.MOV " + (downloads() / "IMG 2.MOV").native() }));
}

TEST_F(MediaExportTest, WordsThatNameAnotherFileAreNotCopied)
{
    change([](auto& rules) { rules.reading = "words"; });
    tool().add("/DCIM/100APPLE\xC3\xA9/IMG_1.MOV", "the one that is meant");
    m_known = { { "/DCIM/100APPLE", "100APPLE", { file(path) } } };
    expectFailure("/DCIM/100APPLE\xC3\xA9/IMG_1.MOV", downloads());
    EXPECT_EQ(tool().runs(), 0U);
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
}

TEST_F(MediaExportTest, FolderWhoseWordsNameAnExistingFileOfThisComputerIsNotTried)
{
    change([](auto& rules) { rules.overwrites = true; });
    lendNoPath();
    const Sentinel mine(home() / "my"), other(home() / "your/IMG_1.MOV");
    for (const char* name : { "my photos", "'my' photos", "your'", "yo\"ur", "\"your\"", "your\xC3\xA9", "yo\\ur" }) {
        std::filesystem::create_directory(home() / name);
        expectFailure(path, home() / name);
    }
    EXPECT_EQ(other.difference(), "");
    EXPECT_EQ(mine.difference(), "");
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaExportTest, WordsOfANameThatExistInTheWorkingFolderAreNotTried)
{
    const auto former = std::filesystem::current_path();
    const Sentinel mine(home() / "2.MOV");
    std::filesystem::current_path(home());
    change([](auto& rules) { rules.overwrites = true; });
    tool().add("/DCIM/100APPLE/IMG", "another");
    expectFailure("/DCIM/100APPLE/IMG 2.MOV", downloads());
    std::filesystem::current_path(former);
    EXPECT_EQ(mine.difference(), "");
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaExportTest, NameThatIsAWayOutIsNoDestination)
{
    for (const char* name : { "", ".", "..", "...", "a/b", "../x", "/etc/x", "a\nb", "a\tb", "\x1b[m", "\xC2\x85" }) {
        const IOSMediaFile hostile{ path, name };
        EXPECT_THROW(manager().exportFile(hostile, udid, downloads(), {}), MediaError) << name;
    }
    EXPECT_THROW(manager().exportFile({ path, std::string("a\0b", 3) }, udid, downloads(), {}), MediaError);
    EXPECT_EQ(tool().runs(), 0U);
}

TEST_F(MediaExportTest, ControlCharactersNeverEnterTheScript)
{
    lendNoPath();
    std::filesystem::create_directory(home() / "two\nlines");
    expectFailure(path, home() / "two\nlines");
    for (const char* hostile : { "/DCIM/a\nrm /DCIM/100APPLE/IMG_1.MOV", "/DCIM/\x01", "", "-f", "DCIM/a" })
        EXPECT_THROW(manager().exportFile({ hostile, "IMG_1.MOV" }, udid, downloads(), {}), MediaError) << hostile;
    expectFailure(path, "Downloads");
    EXPECT_EQ(tool().runs(), 0U);
    EXPECT_TRUE(tool().has(path));
}

TEST_F(MediaExportTest, NameIsShownSafelyInTheMessage)
{
    tool().add("/DCIM/100APPLE/\xE2\x80\xAEgpj.exe");
    change([](auto& rules) { rules.breaks = "get"; });
    EXPECT_EQ(exportFailure("/DCIM/100APPLE/\xE2\x80\xAEgpj.exe", downloads()), "Export failed for [U+202E]gpj.exe");
}

TEST_F(MediaExportTest, CommandThatTheToolWouldCutIsNotSent)
{
    const auto longest = longestAfcCommand - std::string("get " + path + " /IMG_1.MOV").size();
    const auto missing = [](std::size_t size) {
        std::string folder(size, 'x');
        for (std::size_t slash = 0; slash < size - 1; slash += 100)
            folder[slash] = '/';
        return folder;
    };
    expectFailure(path, missing(longest));
    EXPECT_EQ(tool().runs(), 1U);
    expectFailure(path, missing(longest + 1));
    EXPECT_EQ(tool().runs(), 1U);
}

TEST_F(MediaExportTest, FolderThatIsMissingOrClosedIsAFailure)
{
    expectFailure(path, home() / "missing");
    EXPECT_FALSE(std::filesystem::exists(home() / "missing"));
    // The user may not reach where the program was built.
    const auto program = folder() / "local/bin/afcclient";
    const auto built = std::filesystem::read_symlink(program);
    std::filesystem::remove(program);
    std::filesystem::copy_file(built, program);
    giveToOrdinaryUser(folder().path());
    for (const auto permissions : { std::filesystem::perms::none, std::filesystem::perms(0500) }) {
        std::filesystem::permissions(downloads(), permissions);
        EXPECT_EQ(runAsOrdinaryUser([&] { return exportFailure(path, downloads()); }), "Export failed for IMG_1.MOV");
    }
    std::filesystem::permissions(downloads(), std::filesystem::perms::owner_all);
    EXPECT_TRUE(std::filesystem::is_empty(downloads()));
    EXPECT_EQ(runAsOrdinaryUser([&] { return exportFailure(path, downloads()); }), "");
}

TEST_F(MediaExportTest, NothingIsMadeWhereThereIsNoFolder)
{
    const Sentinel inTheWay(home() / "file");
    std::filesystem::create_symlink(home() / "nowhere", home() / "dangling");
    for (const char* name : { "missing", "file", "dangling" })
        expectFailure(path, home() / name);
    EXPECT_EQ(inTheWay.difference(), "");
    EXPECT_FALSE(std::filesystem::exists(home() / "nowhere") || std::filesystem::exists(home() / "missing"));
}

} // namespace Korvane
