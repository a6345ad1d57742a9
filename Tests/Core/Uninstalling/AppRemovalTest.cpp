// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/RunningApps.h"
#include "Platform/FileError.h"
#include "Tests/Core/Uninstalling/InventoryFixture.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

using Paths = std::vector<std::filesystem::path>;

/// What goes with an application, where it goes, and what is refused.
class AppRemovalTest : public InventoryFixture {
protected:
    AppRemovalTest() { host().files = m_files; }
    const ForwardingFileManager& files() const { return *m_files; }

    static std::string refusal(const std::filesystem::path& url)
    {
        return FileError(url, std::make_error_code(std::errc::operation_not_permitted)).localizedDescription();
    }
    /// Nothing is done to an application that is said to lie there.
    void expectRefused(const std::filesystem::path& url)
    {
        const auto leftover = library("Caches/com.example.App");
        const InstalledApp app(
            url, "App", "com.example.App", 5, { ScanItem(leftover, std::nullopt, "Caches", 9, true) });
        EXPECT_EQ(AppRemoval::remove(app, host()), (Cleaner::Result{ 0, 0, { { url, refusal(url) } } }));
        EXPECT_TRUE(files().trashed().empty() && files().removed().empty() && files().emptied().empty()) << url;
    }

private:
    std::shared_ptr<ForwardingFileManager> m_files = std::make_shared<ForwardingFileManager>(host().files);
};

} // namespace

TEST_F(AppRemovalTest, ItemsAreTheApplicationAndThenItsLeftovers)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const auto app = appAt(shared("App.app"));
    const auto items = AppRemoval::items(app);
    ASSERT_EQ(items.size(), 8U);
    EXPECT_EQ(items[0].url, app.url);
    EXPECT_EQ(items[0].displayName, "App");
    EXPECT_EQ(items[0].category, "Applications");
    EXPECT_EQ(items[0].sizeInBytes, app.sizeInBytes);
    EXPECT_TRUE(items[0].selectableByDefault);
    EXPECT_EQ(std::vector<ScanItem>(items.begin() + 1, items.end()), app.leftovers);
}

TEST_F(AppRemovalTest, EverythingGoesToTheTrashAndNothingElseIsTouched)
{
    const Sentinel other(shared("Other.app") / "Contents/MacOS/program");
    const Sentinel similar(library("Caches/com.example.App.other/data"));
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const auto app = appAt(shared("App.app"));
    const auto result = AppRemoval::remove(app, host());
    EXPECT_EQ(result, (Cleaner::Result{ app.totalSize(), 8, {} }));
    Paths expected{ shared("App.app") };
    for (const auto& path : leftoverPaths("com.example.App"))
        expected.push_back(path);
    EXPECT_EQ(files().trashed(), expected);
    EXPECT_TRUE(files().removed().empty() && files().emptied().empty());
    for (const auto& path : expected)
        EXPECT_FALSE(std::filesystem::exists(path)) << path;
    EXPECT_EQ(other.difference() + similar.difference(), "");
}

TEST_F(AppRemovalTest, SecondOfTwoWithOneIdentifierReportsWhatTheFirstTook)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeBundle(own("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const auto first = appAt(shared("App.app"));
    const auto second = appAt(own("App.app"));
    EXPECT_TRUE(AppRemoval::remove(first, host()).failures.empty());
    const auto result = AppRemoval::remove(second, host());
    EXPECT_EQ(result.cleanedCount, 1);
    EXPECT_EQ(result.cleanedBytes, second.sizeInBytes);
    EXPECT_EQ(result.failures.size(), 7U);
    EXPECT_TRUE(scanApps().empty());
}

TEST_F(AppRemovalTest, LinkInPlaceOfTheBundleIsTrashedAndWhatItLeadsToIsKept)
{
    const Sentinel kept(folder() / "elsewhere/Real.app/Contents/MacOS/program");
    std::filesystem::create_directories(folder() / "Applications");
    std::filesystem::create_directory_symlink(folder() / "elsewhere/Real.app", shared("Link.app"));
    EXPECT_TRUE(AppRemoval::remove(appAt(shared("Link.app")), host()).failures.empty());
    EXPECT_FALSE(std::filesystem::is_symlink(shared("Link.app")));
    EXPECT_EQ(kept.difference(), "");
}

TEST_F(AppRemovalTest, BundleThatWasSwappedForALinkSinceTheScanCostsNothingOutside)
{
    const Sentinel kept(home() / "Documents/keep");
    makeBundle(shared("App.app"), "com.example.App");
    const auto app = appAt(shared("App.app"));
    std::filesystem::remove_all(shared("App.app"));
    std::filesystem::create_directory_symlink(home() / "Documents", shared("App.app"));
    (void)AppRemoval::remove(app, host());
    EXPECT_EQ(kept.difference(), "");
}

TEST_F(AppRemovalTest, OneThatFailsIsReportedAndTheRestGoes)
{
    makeBundle(shared("App.app"), "com.example.App");
    makeAllLeftovers("com.example.App");
    const auto app = appAt(shared("App.app"));
    std::filesystem::remove_all(app.leftovers[2].url);
    const auto result = AppRemoval::remove(app, host());
    EXPECT_EQ(result.cleanedCount, 7);
    ASSERT_EQ(result.failures.size(), 1U);
    EXPECT_EQ(result.failures[0].url, app.leftovers[2].url);
    EXPECT_FALSE(result.failures[0].message.empty());
}

TEST_F(AppRemovalTest, WhatLiesOutsideTheApplicationFoldersIsRefused)
{
    writeFile(library("Caches/com.example.App/data"), std::size_t{ 9 });
    for (const auto& url : { folder() / "Applications", home() / "Applications", home(), std::filesystem::path("/"),
             home() / "Documents/App.app", shared("Sub/App.app"), shared("App"), shared("App.app/Contents"),
             shared("../home/App.app"), std::filesystem::path("App.app"), std::filesystem::path(), shared("App.app/") })
        expectRefused(url);
}

TEST_F(AppRemovalTest, NothingIsEverDeletedEvenWhereAnItemLiesInTheTrash)
{
    const Sentinel trashed(home() / ".Trash/com.example.App/data");
    makeBundle(shared("App.app"), "com.example.App");
    const auto inTrash = home() / ".Trash/com.example.App";
    const InstalledApp app(shared("App.app"), "App", "com.example.App", 5,
        { ScanItem(inTrash, std::nullopt, "Caches", 9, true),
            ScanItem(home() / ".Trash", std::nullopt, "Caches", 9, true) });
    const auto result = AppRemoval::remove(app, host());
    EXPECT_EQ(result,
        (Cleaner::Result{
            5, 1, { { inTrash, refusal(inTrash) }, { home() / ".Trash", refusal(home() / ".Trash") } } }));
    EXPECT_TRUE(files().removed().empty() && files().emptied().empty());
    EXPECT_EQ(trashed.difference(), "");
}

TEST_F(AppRemovalTest, RunningIsToldByTheExactIdentifier)
{
    setRunning({ "com.example.App", "" });
    const RunningApps running(*host().workspace);
    const auto isRunning = [&](std::optional<std::string> identifier) {
        return running.contains(InstalledApp("/Applications/App.app", "App", std::move(identifier), 0, {}));
    };
    EXPECT_TRUE(isRunning("com.example.App"));
    EXPECT_FALSE(isRunning("com.example.app"));
    EXPECT_FALSE(isRunning("com.example.App.helper"));
    EXPECT_FALSE(isRunning(std::nullopt));
}

TEST(InstalledApp, IsAValueWithAnIdentityOfItsOwn)
{
    const InstalledApp app("/Applications/App.app", "App", "com.example.App", 3,
        { ScanItem("/a", std::nullopt, "Caches", 4, true), ScanItem("/b", std::nullopt, "Caches", 5, true) });
    const InstalledApp copy = app;
    EXPECT_EQ(copy, app);
    EXPECT_EQ(std::hash<InstalledApp>()(copy), std::hash<InstalledApp>()(app));
    EXPECT_EQ(app.totalSize(), 12);
    const InstalledApp same("/Applications/App.app", "App", "com.example.App", 3, app.leftovers);
    EXPECT_NE(same, app);
    EXPECT_NE(std::hash<InstalledApp>()(same), std::hash<InstalledApp>()(app));
}

TEST(InstalledAppDeathTest, TotalThatDoesNotFitStopsTheProgram)
{
    const InstalledApp app(
        "/Applications/App.app", "App", std::nullopt, INT64_MAX, { ScanItem("/a", std::nullopt, "Caches", 1, true) });
    EXPECT_DEATH((void)app.totalSize(), "");
}

} // namespace Korvane
