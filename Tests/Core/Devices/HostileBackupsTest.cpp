// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/PropertyList.h"
#include "Tests/Core/Devices/BackupFixture.h"
#include "Tests/Fuzz/BinaryListBuilder.h"
#include "Tests/Fuzz/PropertyListSeeds.h"
#include "Tests/Support/CancelMidway.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <sys/stat.h>

namespace Korvane {

namespace {

using HostileBackupsTest = BackupFixture;

const std::filesystem::perms closed{ 0 }, open{ 0755 };

} // namespace

TEST_F(HostileBackupsTest, DescriptionThatIsNoDictionaryNamesNothing)
{
    const std::string array = "<?xml version=\"1.0\"?><plist version=\"1.0\"><array><string>Device Name</string>"
                              "<string>a</string></array></plist>";
    auto contents = propertyListSeeds();
    contents.insert(contents.end(),
        { "no property list", "", "bplist00", array, named("cut off").substr(0, 80), sharedReferenceList(60),
            binaryList({ binaryArray({ 0, 0, 0 }) }), binaryList({ binaryDictionary({ 0 }, { 0 }) }),
            "{ \"Device Name\" = old; }" });
    for (const auto& description : contents) {
        const auto found = described(description);
        EXPECT_EQ(found.deviceName, "folder-name") << description;
        EXPECT_EQ(found.lastBackupDate, std::nullopt);
    }
}

TEST_F(HostileBackupsTest, NamesOfAnyKindAreTakenAsTheyStand)
{
    EXPECT_EQ(described(named("two\nlines \xe2\x80\xae"
                              "gpj.exe"))
                  .deviceName,
        "two\nlines \xe2\x80\xae"
        "gpj.exe");
    const auto zero = described(binaryList(
        { binaryDictionary({ 1 }, { 2 }), binaryAscii("Device Name"), binaryAscii(std::string("a\0\x1b[2J", 6)) }));
    EXPECT_EQ(zero.deviceName, std::string("a\0\x1b[2J", 6));
    const std::string large(500'000, 'n');
    EXPECT_EQ(described(named(large)).deviceName, large);
}

TEST_F(HostileBackupsTest, FolderNamesOfAnyKindAreShownAsText)
{
    for (const std::string name : { "a\nb", "\x1b[2J", "-rf", "two words" })
        std::filesystem::create_directories(backup(name));
    EXPECT_EQ(backupAt("a\nb").deviceName, "a\u240Ab");
    EXPECT_EQ(backupAt("\x1b[2J").deviceName, "\u241B[2J");
    EXPECT_EQ(scanBackups().size(), 4U);
}

TEST_F(HostileBackupsTest, FolderNamesOfAnyBytesAreShownAsText)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    std::filesystem::create_directories(backup("a\xff\nb"));
    EXPECT_EQ(backupAt("a\xff\nb").deviceName, "a\uFFFD\u240Ab");
}

TEST_F(HostileBackupsTest, DatesBeyondAllCalendarsDoNoHarm)
{
    const auto dated = [&](double seconds) {
        return described(
            binaryList({ binaryDictionary({ 1 }, { 2 }), binaryAscii("Last Backup Date"), binaryDate(seconds) }))
            .lastBackupDate;
    };
    EXPECT_TRUE(dated(-63'114'076'800.0)); // What Apple calls the distant past.
    EXPECT_TRUE(dated(9e14));
    for (const double none :
        { 1e300, -1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN() })
        EXPECT_EQ(dated(none), std::nullopt) << none;
}

TEST_F(HostileBackupsTest, DescriptionsAreReadUpToABoundAndThatIsEnoughForRealOnes)
{
    const auto padded = [](std::size_t size) {
        auto description = named("Ada’s iPhone");
        return description + std::string(size - description.size(), '\n');
    };
    EXPECT_EQ(described(padded(PropertyList::largestSize)).deviceName, "Ada’s iPhone");
    EXPECT_EQ(described(padded(PropertyList::largestSize + 1)).deviceName, "folder-name");
    writeSparseFile(backup("folder-name/Info.plist"), std::int64_t{ 1 } << 42);
    EXPECT_EQ(backupAt("folder-name").deviceName, "folder-name");
}

TEST_F(HostileBackupsTest, ManyLargeDescriptionsHoldNothingUp)
{
    for (int number = 0; number < 200; ++number)
        writeSparseFile(backup("huge-" + std::to_string(number)) / "Info.plist", std::int64_t{ 1 } << 42);
    describe("small", named("Ada’s iPhone"));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(backupAt("small").deviceName, "Ada’s iPhone");
    EXPECT_EQ(scanBackups().size(), 201U);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(HostileBackupsTest, WhatIsNoRegularFileIsNotWaitedFor)
{
    std::filesystem::create_directories(backup("pipe"));
    ASSERT_EQ(::mkfifo((backup("pipe") / "Info.plist").c_str(), 0600), 0);
    std::filesystem::create_directories(backup("folder/Info.plist"));
    std::filesystem::create_directories(backup("zeros"));
    std::filesystem::create_symlink("/dev/zero", backup("zeros/Info.plist"));
    std::filesystem::create_directories(backup("loop"));
    std::filesystem::create_symlink("Info.plist", backup("loop/Info.plist"));
    for (const char* name : { "pipe", "folder", "zeros", "loop" })
        EXPECT_EQ(backupAt(name).deviceName, name);
}

TEST_F(HostileBackupsTest, LinkToAFolderCountsAsALink)
{
    writeFile(folder() / "elsewhere/data", std::size_t{ 1'000'000 });
    writeFile(folder() / "elsewhere/Info.plist", named("elsewhere"));
    std::filesystem::create_directories(root());
    std::filesystem::create_directory_symlink(folder() / "elsewhere", backup("link"));
    std::filesystem::create_directory_symlink(root(), backup("around"));
    const auto link = backupAt("link");
    EXPECT_EQ(link.deviceName, "elsewhere");
    EXPECT_EQ(link.sizeInBytes, allocatedBytes(backup("link")));
    EXPECT_LT(backupAt("around").sizeInBytes, 100'000);
}

TEST_F(HostileBackupsTest, RootThatIsALinkIsFollowed)
{
    writeFile(folder() / "volume/a/Info.plist", named("Ada’s iPhone"));
    std::filesystem::create_directories(root().parent_path());
    std::filesystem::create_directory_symlink(folder() / "volume", root());
    EXPECT_EQ(backupAt("a").deviceName, "Ada’s iPhone");
    EXPECT_GT(backupAt("a").sizeInBytes, 0);
}

TEST_F(HostileBackupsTest, WhatCannotBeReadIsListedAllTheSame)
{
    describe("closed", named("secret"));
    writeFile(backup("partly/data"), std::size_t{ 100'000 });
    writeFile(backup("partly/inner/data"), std::size_t{ 100'000 });
    std::filesystem::permissions(backup("closed"), closed);
    std::filesystem::permissions(backup("partly/inner"), closed);
    giveToOrdinaryUser(folder().path());
    const auto size = std::to_string(allocatedBytes(backup("partly/data")));
    const auto seen = runAsOrdinaryUser([&] {
        std::string names;
        for (const auto& found : scanBackups())
            names += found.deviceName + " " + std::to_string(found.sizeInBytes) + "\n";
        return names;
    });
    std::filesystem::permissions(backup("closed"), open);
    std::filesystem::permissions(backup("partly/inner"), open);
    EXPECT_EQ(seen, "partly " + size + "\nclosed 0\n");
}

TEST_F(HostileBackupsTest, BackupThatVanishesMeanwhileIsListedEmptyOrNotAtAll)
{
    for (int number = 0; number < 20; ++number)
        describe("backup-" + std::to_string(number), named("Ada’s iPhone"));
    bool isFirst = true;
    const auto found = IOSBackupScanner().scan(host(), [&](const ScanProgress&) {
        if (isFirst)
            removeTree(root());
        isFirst = false;
    });
    EXPECT_FALSE(isFirst);
    EXPECT_EQ(found.size(), 20U);
    // The last in the listing was not looked at before.
    EXPECT_TRUE(std::any_of(found.begin(), found.end(),
        [](const auto& backup) { return backup.sizeInBytes == 0 && backup.deviceName.starts_with("backup-"); }));
    EXPECT_TRUE(scanBackups().empty());
}

TEST_F(HostileBackupsTest, CancelledScanSaysSo)
{
    writeFile(backup("a/data"), std::size_t{ 1000 });
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(scanBackups(cancellation), CancellationError);
}

TEST_F(HostileBackupsTest, ScanIsCancelledWhileItMeasures)
{
    for (int number = 0; number < 3000; ++number)
        writeFile(backup("a/" + std::to_string(number % 256) + "/" + std::to_string(number)), "x");
    EXPECT_TRUE(stopsWhenCancelled(
        [this](const Cancellation& cancellation) { scanBackups(cancellation); }, std::chrono::milliseconds(1)));
}

TEST_F(HostileBackupsTest, ScanChangesNothing)
{
    const Sentinel description(backup("a/Info.plist")), outside(home() / "Documents/letter");
    scanBackups();
    EXPECT_EQ(description.difference() + outside.difference(), "");
}

} // namespace Korvane
