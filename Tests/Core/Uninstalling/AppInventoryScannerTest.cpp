// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FileSizeCalculator.h"
#include "Tests/Core/Uninstalling/InventoryFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace Korvane {

namespace {

using Paths = std::vector<std::filesystem::path>;
using Texts = std::vector<std::string>;

/// What is listed, in which order, with which sizes and leftovers.
class AppInventoryScannerTest : public InventoryFixture { };

} // namespace

TEST_F(AppInventoryScannerTest, NothingInstalledIsAnEmptyList)
{
    EXPECT_TRUE(scanApps().empty());
    EXPECT_TRUE(appReports().empty());
}

TEST_F(AppInventoryScannerTest, ApplicationsOfBothFoldersAreListedLargestFirst)
{
    makeBundle(shared("Small.app"), "com.example.small", 10'000);
    makeBundle(own("Large.app"), "com.example.large", 900'000);
    const auto apps = scanApps();
    ASSERT_EQ(places(apps), (Paths{ own("Large.app"), shared("Small.app") }));
    EXPECT_EQ(apps[0].name, "Large");
    EXPECT_EQ(apps[0].bundleID, "com.example.large");
    EXPECT_EQ(apps[0].kind, InstalledApp::Kind::Bundle);
    EXPECT_EQ(apps[0].sizeInBytes, FileSizeCalculator::totalSize(own("Large.app")));
    EXPECT_TRUE(apps[0].leftovers.empty());
    EXPECT_NE(apps[0].id, apps[1].id);
}

TEST_F(AppInventoryScannerTest, LeftoversCountForTheOrder)
{
    makeBundle(shared("Bare.app"), "com.example.bare", 100'000);
    makeBundle(shared("Light.app"), "com.example.light", 1000);
    writeFile(library("Caches/com.example.light/data"), std::size_t{ 500'000 });
    const auto apps = scanApps();
    ASSERT_EQ(places(apps), (Paths{ shared("Light.app"), shared("Bare.app") }));
    EXPECT_EQ(apps[0].totalSize(), apps[0].sizeInBytes + apps[0].leftovers[0].sizeInBytes);
}

TEST_F(AppInventoryScannerTest, EqualTotalsKeepTheOrderOfDiscovery)
{
    for (const char* name : { "d.app", "a.app", "c.app", "b.app" }) {
        writeFile(own(name) / "data", std::size_t{ 5000 });
        writeFile(shared(name) / "data", std::size_t{ 5000 });
    }
    auto expected = host().files->contentsOfDirectory(folder() / "Applications");
    const auto second = host().files->contentsOfDirectory(home() / "Applications");
    expected.insert(expected.end(), second.begin(), second.end());
    EXPECT_EQ(places(scanApps()), expected);
}

TEST_F(AppInventoryScannerTest, CacheAndPreferencesAreLeftovers)
{
    makeBundle(shared("App.app"), "com.example.App");
    writeFile(library("Caches/com.example.App/data"), std::size_t{ 3'000'000 });
    writeFile(library("Preferences/com.example.App.plist"), std::size_t{ 300 });
    const auto app = appAt(shared("App.app"));
    ASSERT_EQ(categories(app), (Texts{ "Caches", "Preferences" }));
    EXPECT_EQ(app.leftovers[0].url, library("Caches/com.example.App"));
    EXPECT_EQ(app.leftovers[0].displayName, "com.example.App");
    EXPECT_GE(app.leftovers[0].sizeInBytes, 3'000'000);
    EXPECT_EQ(app.leftovers[1].displayName, "com.example.App.plist");
    EXPECT_TRUE(app.leftovers[0].selectableByDefault && app.leftovers[1].selectableByDefault);
    EXPECT_EQ(app.totalSize(), app.sizeInBytes + app.leftovers[0].sizeInBytes + app.leftovers[1].sizeInBytes);
}

TEST_F(AppInventoryScannerTest, SevenPlacesInTheirOrderWithTheirHeadings)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const auto app = appAt(shared("App.app"));
    EXPECT_EQ(urls(app.leftovers), leftoverPaths("com.example.App"));
    EXPECT_EQ(categories(app),
        (Texts{ "Application Support", "Caches", "Preferences", "Other Leftovers", "Other Leftovers", "Other Leftovers",
            "Containers" }));
}

TEST_F(AppInventoryScannerTest, OnlyTheExactIdentifierCounts)
{
    makeBundle(shared("App.app"), "com.example.App");
    for (const char* other : { "com.example.app", "com.example.App.helper", "com.example", "App", "com.example.App " })
        makeAllLeftovers(other);
    writeFile(library("Preferences/com.example.App"), std::size_t{ 300 });
    writeFile(library("Caches/com.example.Appx/data"), std::size_t{ 300 });
    std::filesystem::create_directories(library("Caches/com.example.App.shared"));
    // On a volume that does not tell "a" from "A", the other one is the same place.
    if (std::filesystem::exists(library("Caches/com.example.APP")))
        GTEST_SKIP() << "this volume does not tell capital letters from small ones";
    EXPECT_TRUE(appAt(shared("App.app")).leftovers.empty());
}

TEST_F(AppInventoryScannerTest, EmptyLeftoversAreLeftOut)
{
    makeBundle(shared("App.app"), "com.example.App");
    std::filesystem::create_directories(library("Caches/com.example.App/empty/folders"));
    writeFile(library("Preferences/com.example.App.plist"), std::string_view());
    EXPECT_TRUE(appAt(shared("App.app")).leftovers.empty());
}

TEST_F(AppInventoryScannerTest, HeadingGoesByTheWholePathAndTheFirstThatFits)
{
    // The home folder itself may lie in a folder of such a name.
    const auto place = folder() / "Preferences/Caches/user";
    std::filesystem::create_directories(place);
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [&] { return place; };
    host().files = files;
    makeBundle(shared("App.app"), "com.example.App");
    writeFile(place / "Library/WebKit/com.example.App/data", std::size_t{ 5000 });
    writeFile(place / "Library/Preferences/com.example.App.plist", std::size_t{ 5000 });
    EXPECT_EQ(categories(appAt(shared("App.app"))), (Texts{ "Caches", "Caches" }));
}

TEST_F(AppInventoryScannerTest, FolderWithoutADescriptionIsListedWithoutIdentifier)
{
    writeFile(shared("Foo.app") / "Contents/MacOS/program", std::size_t{ 5000 });
    makeAllLeftovers("Foo");
    const auto app = appAt(shared("Foo.app"));
    EXPECT_EQ(app.name, "Foo");
    EXPECT_EQ(app.bundleID, std::nullopt);
    EXPECT_TRUE(app.leftovers.empty());
}

TEST_F(AppInventoryScannerTest, OnlyVisibleChildrenThatEndInAppAreListed)
{
    makeBundle(shared("Real.app"), "com.example.real");
    makeBundle(shared("Utilities/Inner.app"), "com.example.inner");
    makeBundle(shared("Loud.APP"), "com.example.loud");
    makeBundle(shared("NoDotapp"), "com.example.nodot");
    makeBundle(shared("Old.app.bak"), "com.example.bak");
    makeBundle(shared(".Hidden.app"), "com.example.hidden");
    makeBundle(shared(".app"), "com.example.nameless");
    writeFile(shared("Notes.txt"), std::size_t{ 5000 });
    EXPECT_EQ(places(scanApps()), Paths{ shared("Real.app") });
}

TEST_F(AppInventoryScannerTest, NameIsTheFileNameWithoutItsExtension)
{
    makeBundle(shared("Two Words 1.5.app"), "com.example.a");
    makeBundle(shared("Twice.app.app"), "com.example.b");
    EXPECT_EQ(appAt(shared("Two Words 1.5.app")).name, "Two Words 1.5");
    EXPECT_EQ(appAt(shared("Twice.app.app")).name, "Twice.app");
}

TEST_F(AppInventoryScannerTest, NameThatIsNoTextIsShownAsOne)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    makeBundle(shared("bad\xff.app"), "com.example.c");
    EXPECT_EQ(appAt(shared("bad\xff.app")).name, "bad\uFFFD");
}

TEST_F(AppInventoryScannerTest, ThisProgramIsNeverListed)
{
    makeBundle(shared("Korvane.app"), "org.korvane.Korvane");
    makeBundle(own("Korvane.app"), "org.korvane.Korvane");
    catalog().ownBundle = shared("Korvane.app");
    EXPECT_EQ(places(scanApps()), Paths{ own("Korvane.app") });
    catalog().ownBundle = own("Korvane.app");
    EXPECT_EQ(places(scanApps()), Paths{ shared("Korvane.app") });
}

TEST_F(AppInventoryScannerTest, ThisProgramIsKnownThroughALinkOnTheWayToItsFolder)
{
    makeBundle(folder() / "elsewhere/Korvane.app", "org.korvane.Korvane");
    makeBundle(folder() / "elsewhere/Other.app", "com.example.other");
    std::filesystem::create_directory_symlink(folder() / "elsewhere", home() / "Applications");
    catalog().ownBundle = folder() / "elsewhere/Korvane.app";
    EXPECT_EQ(places(scanApps()), Paths{ own("Other.app") });
}

TEST_F(AppInventoryScannerTest, ThisProgramIsKnownThroughALinkInPlaceOfItsBundle)
{
    makeBundle(folder() / "elsewhere/Korvane.app", "org.korvane.Korvane");
    makeBundle(own("Other.app"), "com.example.other");
    std::filesystem::create_directories(folder() / "Applications");
    std::filesystem::create_directory_symlink(folder() / "elsewhere/Korvane.app", shared("Korvane.app"));
    std::filesystem::create_directory_symlink(own("Loop.app"), own("Loop.app"));
    catalog().ownBundle = std::filesystem::canonical(folder() / "elsewhere/Korvane.app");
    EXPECT_THAT(places(scanApps()), testing::UnorderedElementsAre(own("Other.app"), own("Loop.app")));
}

TEST_F(AppInventoryScannerTest, TwoBundlesWithOneIdentifierEachListItsLeftovers)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeBundle(own("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    EXPECT_EQ(urls(appAt(shared("App.app")).leftovers), leftoverPaths("com.example.App"));
    EXPECT_EQ(urls(appAt(own("App.app")).leftovers), leftoverPaths("com.example.App"));
}

TEST_F(AppInventoryScannerTest, ProgressTellsTheBundleAndWhatWasFoundBefore)
{
    makeBundle(shared("App.app"), "com.example.App");
    (void)scanApps();
    ASSERT_GE(appReports().size(), 1U);
    EXPECT_EQ(appReports()[0], (ScanProgress{ shared("App.app").string(), 0, 0 }));
}

TEST_F(AppInventoryScannerTest, ProgressComesAtMostTenTimesASecond)
{
    for (int i = 0; i < 60; ++i)
        makeBundle(shared("App" + std::to_string(i) + ".app"), "com.example.a" + std::to_string(i));
    const auto start = std::chrono::steady_clock::now();
    const auto apps = scanApps();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(apps.size(), 60U);
    EXPECT_LE(static_cast<double>(appReports().size()), 1 + elapsed.count() / 0.1);
}

TEST_F(AppInventoryScannerTest, ProgressCountsApplicationsWithTheirLeftovers)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    std::vector<ScanProgress> seen;
    std::filesystem::create_directories(own("Second.app"));
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeListing
        = [](const std::filesystem::path&) { std::this_thread::sleep_for(std::chrono::milliseconds(110)); };
    host().files = files;
    const auto apps
        = AppInventoryScanner().scanApps(host(), [&](const ScanProgress& progress) { seen.push_back(progress); });
    // The second folder is listed an interval after the first report, so that its application is reported too.
    ASSERT_GE(seen.size(), 2U);
    EXPECT_EQ(seen[1], (ScanProgress{ own("Second.app").string(), 1, apps[0].totalSize() }));
}

} // namespace Korvane
