// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/LeftoverPlaces.h"
#include "Platform/FileError.h"
#include "Tests/Core/RestlessFolder.h"
#include "Tests/Core/Uninstalling/InventoryFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

using Paths = std::vector<std::filesystem::path>;

/// The inventory where something is missing, closed, hostile, changing or stopped.
class AppInventoryFaultsTest : public InventoryFixture { };

} // namespace

TEST_F(AppInventoryFaultsTest, FolderThatCannotBeListedContributesNothingAndTheScanGoesOn)
{
    makeBundle(shared("A.app"), "com.example.a");
    makeBundle(own("B.app"), "com.example.b");
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeListing = [&](const std::filesystem::path& listed) {
        if (listed == folder() / "Applications")
            throw FileError(listed, std::make_error_code(std::errc::io_error));
    };
    host().files = files;
    EXPECT_EQ(places(scanApps()), Paths{ own("B.app") });
}

TEST_F(AppInventoryFaultsTest, WhatIsClosedToAnOrdinaryUserCountsNothingAndIsStillListed)
{
    makeBundle(shared("Closed.app"), "com.example.closed");
    makeBundle(shared("Open.app"), "com.example.open");
    writeFile(library("Caches/com.example.open/data"), std::size_t{ 5000 });
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(shared("Closed.app"), std::filesystem::perms::none);
    std::filesystem::permissions(library("Caches/com.example.open"), std::filesystem::perms::none);
    const auto found = runAsOrdinaryUser([&] {
        std::string text;
        for (const auto& app : scanApps())
            text += app.name + "," + app.bundleID.value_or("none") + "," + (app.sizeInBytes > 0 ? "sized" : "0") + ","
                + std::to_string(app.leftovers.size()) + ";";
        return text;
    });
    EXPECT_EQ(found, "Open,com.example.open,sized,0;Closed,none,0,0;");
}

TEST_F(AppInventoryFaultsTest, HostileIdentifierIsShownAndNamesNoLeftover)
{
    const Sentinel sentinel(home() / "Documents/keep");
    makeAllLeftovers("com.example.other");
    int number = 0;
    for (const char* hostile :
        { "../../Documents", "/etc", "com.example.other/data", "..", ".", "a/../b", "/", "//" }) {
        const auto url = makeBundle(shared("Hostile" + std::to_string(++number) + ".app"), hostile);
        const auto app = appAt(url);
        EXPECT_EQ(app.bundleID, hostile);
        EXPECT_TRUE(app.leftovers.empty()) << hostile;
    }
    EXPECT_EQ(sentinel.difference(), "");
}

TEST_F(AppInventoryFaultsTest, EmptyIdentifierNamesNoLeftover)
{
    makeAllLeftovers("com.example.other");
    writeFile(library("Preferences/.plist"), std::size_t{ 5000 });
    writeFile(library("Saved Application State/.savedState"), std::size_t{ 5000 });
    EXPECT_TRUE(appAt(makeBundle(shared("Empty.app"), "")).leftovers.empty());
}

TEST(LeftoverPlaces, OnlyWhatNamesOneEntryIsAFileName)
{
    for (const auto& name : { std::string(), std::string("."), std::string(".."), std::string("/"), std::string("a/b"),
             std::string("../a"), std::string("a\0b", 3), std::string("\0", 1) })
        EXPECT_FALSE(isFileName(name)) << name;
    for (const char* name : { "a", "...", "com.example.App", "-rf", " ", "*", "~", "bad\xff", "line\nfeed", "\\" })
        EXPECT_TRUE(isFileName(name)) << name;
}

TEST_F(AppInventoryFaultsTest, OddIdentifiersAreTakenAsTheyStand)
{
    int number = 0;
    for (const char* odd : { "*", "~", "-rf", "two words", "$HOME", "...", "com.example.\xC3\xBC" }) {
        makeAllLeftovers(odd);
        const auto app = appAt(makeBundle(shared("Odd" + std::to_string(++number) + ".app"), odd));
        EXPECT_EQ(app.bundleID, odd);
        EXPECT_EQ(urls(app.leftovers), leftoverPaths(odd));
    }
}

TEST_F(AppInventoryFaultsTest, IdentifierLongerThanAnyNameNamesNoLeftover)
{
    const std::string longest(100'000, 'x');
    const auto app = appAt(makeBundle(shared("Long.app"), longest));
    EXPECT_EQ(app.bundleID, longest);
    EXPECT_TRUE(app.leftovers.empty());
}

TEST_F(AppInventoryFaultsTest, DescriptionThatIsBrokenOrNoFileLeavesTheBundleListed)
{
    writeFile(shared("Broken.app") / "Contents/Info.plist", "<plist><dict><key>CFBundleIdentifier</key>");
    std::filesystem::create_directories(shared("Folder.app") / "Contents/Info.plist");
    writeFile(shared("File.app"), std::size_t{ 5000 });
    for (const char* name : { "Broken.app", "Folder.app", "File.app" })
        EXPECT_EQ(appAt(shared(name)).bundleID, std::nullopt) << name;
}

TEST_F(AppInventoryFaultsTest, LinkToABundleIsMeasuredAsALink)
{
    const auto real = makeBundle(folder() / "elsewhere/Real.app", "com.example.real", 3'000'000);
    std::filesystem::create_directories(folder() / "Applications");
    std::filesystem::create_directory_symlink(real, shared("Link.app"));
    std::filesystem::create_directory_symlink(folder() / "missing", shared("Broken.app"));
    EXPECT_EQ(appAt(shared("Link.app")).sizeInBytes, allocatedBytes(shared("Link.app")));
    EXPECT_EQ(appAt(shared("Link.app")).bundleID, "com.example.real");
    EXPECT_EQ(appAt(shared("Broken.app")).bundleID, std::nullopt);
}

TEST_F(AppInventoryFaultsTest, LinkInPlaceOfALeftoverCountsNothingOfWhatItLeadsTo)
{
    writeFile(home() / "Documents/large", std::size_t{ 3'000'000 });
    makeBundle(shared("App.app"), "com.example.App");
    std::filesystem::create_directories(library("Caches"));
    std::filesystem::create_directory_symlink(home() / "Documents", library("Caches/com.example.App"));
    for (const auto& leftover : appAt(shared("App.app")).leftovers)
        EXPECT_EQ(leftover.sizeInBytes, allocatedBytes(leftover.url));
}

TEST_F(AppInventoryFaultsTest, BundlesThatVanishWhileTheyAreLookedAtDoNoHarm)
{
    for (int i = 0; i < 10; ++i)
        makeBundle(shared("App" + std::to_string(i) + ".app"), "com.example.App");
    const auto apps = AppInventoryScanner().scanApps(
        host(), [&](const ScanProgress&) { std::filesystem::remove_all(folder() / "Applications"); });
    for (const auto& app : apps)
        EXPECT_EQ(app.totalSize(), 0);
    EXPECT_EQ(apps.size(), 10U);
}

TEST_F(AppInventoryFaultsTest, RestlessBundleIsListedEachTime)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const RestlessFolder inBundle(shared("App.app") / "Contents/Restless");
    const RestlessFolder inLeftover(library("Caches/com.example.App/Restless"));
    for (int round = 0; round < 50; ++round) {
        const auto app = appAt(shared("App.app"));
        EXPECT_EQ(app.bundleID, "com.example.App");
        EXPECT_GE(app.sizeInBytes, 20'000);
        EXPECT_EQ(app.leftovers.size(), 7U);
    }
}

TEST_F(AppInventoryFaultsTest, RestlessFolderOfApplicationsLosesNoneThatStays)
{
    makeBundle(shared("Stays.app"), "com.example.stays");
    const RestlessFolder restless(folder() / "Applications");
    for (int round = 0; round < 50; ++round)
        EXPECT_EQ(appAt(shared("Stays.app")).bundleID, "com.example.stays");
}

TEST_F(AppInventoryFaultsTest, CancelledBeforeItBeginsThrows)
{
    makeBundle(shared("App.app"), "com.example.App");
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)scanApps(cancellation), CancellationError);
    EXPECT_TRUE(appReports().empty());
}

TEST_F(AppInventoryFaultsTest, CancelledMidwayThrows)
{
    for (int i = 0; i < 20; ++i)
        makeBundle(shared("App" + std::to_string(i) + ".app"), "com.example.App");
    const Cancellation cancellation;
    int calls = 0;
    const auto cancelAtOnce = [&](const ScanProgress&) {
        ++calls;
        cancellation.cancel();
    };
    EXPECT_THROW((void)AppInventoryScanner().scanApps(host(), cancelAtOnce, cancellation), CancellationError);
    EXPECT_EQ(calls, 1);
}

TEST_F(AppInventoryFaultsTest, ScanChangesNothing)
{
    makeBundle(shared("App.app"), "com.example.App");
    const Sentinel program(shared("App.app") / "Contents/MacOS/sentinel");
    const Sentinel cache(library("Caches/com.example.App/data"));
    EXPECT_EQ(scanApps().size(), 1U);
    EXPECT_EQ(program.difference() + cache.difference(), "");
}

} // namespace Korvane
