// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSBackupScanner.h"

#include "Core/Scanning/FileSizeCalculator.h"
#include "Platform/FileError.h"
#include "Tests/Core/Devices/BackupFixture.h"
#include "Tests/Fuzz/BinaryListBuilder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace Korvane {

namespace {

using IOSBackupScannerTest = BackupFixture;
using namespace std::chrono_literals;

constexpr std::size_t unit = 64 * 1024;

} // namespace

TEST_F(IOSBackupScannerTest, TheyLieInTheUsersLibrary)
{
    EXPECT_EQ(IOSBackupScanner::backupRoot(host().environment),
        home() / "Library" / "Application Support" / "MobileSync" / "Backup");
}

TEST_F(IOSBackupScannerTest, WithoutTheFolderThereAreNone)
{
    EXPECT_TRUE(scanBackups().empty());
    EXPECT_FALSE(std::filesystem::exists(home() / "Library"));
    std::filesystem::create_directories(root());
    EXPECT_TRUE(scanBackups().empty());
    std::filesystem::remove(root());
    writeFile(root(), "no folder");
    EXPECT_TRUE(scanBackups().empty());
}

TEST_F(IOSBackupScannerTest, FolderThatCannotBeListedHasNone)
{
    writeFile(backup("a/data"), unit);
    forwardFiles().beforeListing = [](const std::filesystem::path& listed) {
        throw FileError(listed, std::make_error_code(std::errc::permission_denied));
    };
    EXPECT_TRUE(scanBackups().empty());
}

TEST_F(IOSBackupScannerTest, DescriptionNamesTheDevice)
{
    const auto found = described(list("<key>Device Name</key><string>Ada’s iPhone</string>"
                                      "<key>Product Version</key><string>17.4.1</string>"
                                      "<key>Last Backup Date</key><date>2026-11-20T17:05:09Z</date>"));
    EXPECT_EQ(found.url, backup("folder-name"));
    EXPECT_EQ(found.deviceName, "Ada’s iPhone");
    EXPECT_EQ(found.productVersion, "17.4.1");
    EXPECT_EQ(found.lastBackupDate, std::chrono::sys_days(std::chrono::year(2026) / 11 / 20) + 17h + 5min + 9s);
}

TEST_F(IOSBackupScannerTest, WithoutADescriptionItHasTheNameOfItsFolder)
{
    std::filesystem::create_directories(backup("00008030-AB"));
    const auto found = backupAt("00008030-AB");
    EXPECT_EQ(found.deviceName, "00008030-AB");
    EXPECT_EQ(found.productVersion, std::nullopt);
    EXPECT_EQ(found.lastBackupDate, std::nullopt);
    EXPECT_EQ(found.sizeInBytes, 0);
}

TEST_F(IOSBackupScannerTest, EachValueFallsBackByItself)
{
    const auto numbers = described(list("<key>Device Name</key><integer>1</integer><key>Product Version</key><real>17"
                                        "</real><key>Last Backup Date</key><string>2026-11-20T17:05:09Z</string>"));
    EXPECT_EQ(numbers.deviceName, "folder-name");
    EXPECT_EQ(numbers.productVersion, std::nullopt);
    EXPECT_EQ(numbers.lastBackupDate, std::nullopt);
    const auto version = described(list("<key>Product Version</key><string>9.3</string>"));
    EXPECT_EQ(version.deviceName, "folder-name");
    EXPECT_EQ(version.productVersion, "9.3");
    EXPECT_EQ(described(list("<key>device name</key><string>a</string>")).deviceName, "folder-name");
    EXPECT_EQ(described(named("")).deviceName, "");
    EXPECT_EQ(described(list("<key>Product Version</key><string></string>")).productVersion, "");
}

TEST_F(IOSBackupScannerTest, BinaryDescriptionsAreReadAndTheirKeysHaveToBeTexts)
{
    const auto text = [](const std::string& value) { return binaryAscii(value); };
    const auto found = described(binaryList({ binaryDictionary({ 1, 3 }, { 2, 4 }), text("Device Name"), text("iPad"),
        text("Last Backup Date"), binaryDate(0.5) }));
    EXPECT_EQ(found.deviceName, "iPad");
    EXPECT_EQ(found.lastBackupDate, std::chrono::sys_days(std::chrono::year(2001) / 1 / 1) + 500ms);
    const auto numbered = described(binaryList(
        { binaryDictionary({ 1, 3 }, { 2, 4 }), text("Device Name"), text("iPad"), binaryInteger(7, 0), text("x") }));
    EXPECT_EQ(numbered.deviceName, "folder-name");
}

TEST_F(IOSBackupScannerTest, OnlyVisibleFoldersAreListed)
{
    writeFile(backup("file"), unit);
    writeFile(backup(".hidden/data"), unit);
    std::filesystem::create_symlink(backup("file"), backup("link-to-file"));
    std::filesystem::create_symlink("/nowhere", backup("broken"));
    writeFile(backup("real/data"), unit);
    EXPECT_EQ(folders(), Names{ "real" });
}

TEST_F(IOSBackupScannerTest, LargestComesFirst)
{
    writeFile(backup("five/data"), 5 * unit);
    writeFile(backup("twenty/data"), 20 * unit);
    writeFile(backup("one/data"), unit);
    const auto found = scanBackups();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(folders(), (Names{ "twenty", "five", "one" }));
    for (const auto& each : found)
        EXPECT_EQ(each.sizeInBytes, FileSizeCalculator::totalSize(each.url));
    EXPECT_EQ(found[0].sizeInBytes, allocatedBytes(backup("twenty/data")));
}

TEST_F(IOSBackupScannerTest, EqualSizesKeepTheOrderOfTheListing)
{
    Names expected;
    for (const char* name : { "c", "a", "d", "b" })
        std::filesystem::create_directories(backup(name));
    for (const auto& url : host().files->contentsOfDirectory(root()))
        expected.push_back(url.filename());
    EXPECT_EQ(folders(), expected);
}

TEST_F(IOSBackupScannerTest, WholeTreesAreMeasuredAsTheyLieOnTheDisk)
{
    writeFile(backup("a/00/00aa"), unit);
    writeFile(backup("a/ff/deep/.hidden/data"), 2 * unit);
    writeSparseFile(backup("a/sparse"), std::int64_t{ 1 } << 40);
    EXPECT_EQ(backupAt("a").sizeInBytes,
        allocatedBytes(backup("a/00/00aa")) + allocatedBytes(backup("a/ff/deep/.hidden/data"))
            + allocatedBytes(backup("a/sparse")));
}

TEST_F(IOSBackupScannerTest, TwoScansGiveRecordsThatAreNotEqual)
{
    std::filesystem::create_directories(backup("a"));
    const auto first = backupAt("a"), second = backupAt("a");
    EXPECT_NE(first.id, second.id);
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first == IOSBackup(first));
    EXPECT_NE(std::hash<IOSBackup>()(first), std::hash<IOSBackup>()(second));
}

TEST_F(IOSBackupScannerTest, ProgressNamesWhatIsMeasured)
{
    writeFile(backup("a/data"), unit);
    std::vector<ScanProgress> reports;
    IOSBackupScanner().scan(host(), [&](const ScanProgress& progress) { reports.push_back(progress); });
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports.front(), (ScanProgress{ backup("a"), 0, 0 }));
}

} // namespace Korvane
