// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/FileSizeCalculator.h"
#include "Tests/Core/SystemJunkFixture.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

class SystemJunkScannerTest : public SystemJunkFixture { };

} // namespace

TEST_F(SystemJunkScannerTest, EmptyHomeYieldsNothingAndReportsNothingButTheTemporaryDirectory)
{
    EXPECT_TRUE(scanJunk().empty());
    EXPECT_EQ(reports(), (std::vector<ScanProgress>{ { temporary().string(), 0, 0 } }));
}

TEST_F(SystemJunkScannerTest, CachesOfTheSystemAreFoundAndNotPreselectedInAnyCase)
{
    makeCache("com.apple.Safari");
    makeCache("COM.APPLE.x");
    makeCache("com.applepie");
    EXPECT_NE(itemAt(scanJunk(), caches() / "com.apple.Safari"), nullptr);
    EXPECT_NE(itemAt(scanJunk(), caches() / "COM.APPLE.x"), nullptr);
    EXPECT_FALSE(isPreselected("com.apple.Safari"));
    EXPECT_FALSE(isPreselected("COM.APPLE.x"));
    EXPECT_TRUE(isPreselected("com.applepie"));
}

TEST_F(SystemJunkScannerTest, CacheEqualToARunningIdentifierIsNotPreselected)
{
    setRunning({ "com.example.Editor" });
    makeCache("com.example.editor");
    makeCache("COM.EXAMPLE.EDITOR");
    EXPECT_FALSE(isPreselected("com.example.editor"));
    EXPECT_FALSE(isPreselected("COM.EXAMPLE.EDITOR"));
}

TEST_F(SystemJunkScannerTest, CacheThatContainsARunningIdentifierIsNotPreselected)
{
    setRunning({ "com.example.Editor" });
    makeCache("com.example.editor.agent");
    EXPECT_FALSE(isPreselected("com.example.editor.agent"));
}

TEST_F(SystemJunkScannerTest, CacheContainedInARunningIdentifierIsNotPreselected)
{
    setRunning({ "com.example.Editor" });
    makeCache("example.editor");
    EXPECT_FALSE(isPreselected("example.editor"));
}

TEST_F(SystemJunkScannerTest, FourCharactersAreComparedAsAPart)
{
    setRunning({ "com.example.Editor" });
    makeCache("edit");
    EXPECT_FALSE(isPreselected("edit"));
}

TEST_F(SystemJunkScannerTest, FewerThanFourCharactersAreComparedAsAWholeOnly)
{
    setRunning({ "com.example.Editor", "tmp" });
    makeCache("ed");
    makeCache("edi");
    makeCache("TMP");
    EXPECT_TRUE(isPreselected("ed"));
    EXPECT_TRUE(isPreselected("edi"));
    EXPECT_FALSE(isPreselected("TMP"));
}

TEST_F(SystemJunkScannerTest, CharactersAreCountedAndNotBytes)
{
    setRunning({ "org.äöü.editor" });
    makeCache("äöü");
    makeCache("ÄÖÜ.");
    EXPECT_TRUE(isPreselected("äöü"));
    EXPECT_FALSE(isPreselected("ÄÖÜ."));
}

TEST_F(SystemJunkScannerTest, CacheOfNoRunningApplicationIsPreselected)
{
    setRunning({ "com.example.Editor", "" });
    makeCache("org.other.Player");
    EXPECT_TRUE(isPreselected("org.other.Player"));
}

TEST_F(SystemJunkScannerTest, ApplicationsWithoutAnIdentifierMatchNothing)
{
    class NamelessApplications final : public Workspace {
        std::vector<RunningApplication> runningApplications() const override { return { {}, {} }; }
        bool open(const std::string&) const override { return false; }
        bool showInFileManager(const std::filesystem::path&) const override { return false; }
    };
    host().workspace = std::make_shared<NamelessApplications>();
    makeCache("org.other.Player");
    EXPECT_TRUE(isPreselected("org.other.Player"));
}

TEST_F(SystemJunkScannerTest, LogsAreAlwaysPreselected)
{
    setRunning({ "com.example.Editor", "com.apple.dt.Xcode" });
    writeFile(logs() / "com.example.Editor/run.log", std::size_t{ 5000 });
    writeFile(logs() / "com.apple.thing.log", std::size_t{ 5000 });
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 2U);
    for (const auto& item : items) {
        EXPECT_TRUE(item.selectableByDefault);
        EXPECT_EQ(item.category, "Log Files");
    }
}

TEST_F(SystemJunkScannerTest, DerivedDataIsPreselectedWhileXcodeDoesNotRun)
{
    writeFile(derivedData() / "Project-abc/Build/object.o", std::size_t{ 5000 });
    setRunning({ "com.apple.dt.xcode", "com.apple.dt.Xcode.helper" });
    auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].category, "Xcode Junk");
    EXPECT_TRUE(items[0].selectableByDefault);
    setRunning({ "com.apple.dt.Xcode" });
    items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_FALSE(items[0].selectableByDefault);
}

TEST_F(SystemJunkScannerTest, WholeFoldersYieldOneItemEachThatIsNeverPreselected)
{
    writeFile(simulatorCaches() / "a/file", std::size_t{ 5000 });
    writeFile(simulatorCaches() / "b/file", std::size_t{ 5000 });
    writeFile(temporary() / "a", std::size_t{ 5000 });
    writeFile(temporary() / "b", std::size_t{ 5000 });
    writeFile(home() / ".Trash/a", std::size_t{ 5000 });
    writeFile(home() / ".Trash/.b", std::size_t{ 5000 });
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 3U);
    for (const auto& item : items)
        EXPECT_FALSE(item.selectableByDefault);
    const auto* simulator = itemAt(items, simulatorCaches());
    ASSERT_NE(simulator, nullptr);
    EXPECT_EQ(simulator->category, "Xcode Junk");
    EXPECT_EQ(simulator->displayName, "Caches");
    const auto* temporaryFiles = itemAt(items, temporary());
    ASSERT_NE(temporaryFiles, nullptr);
    EXPECT_EQ(temporaryFiles->category, "Temporary Files");
    const auto* trash = itemAt(items, home() / ".Trash");
    ASSERT_NE(trash, nullptr);
    EXPECT_EQ(trash->category, "Trash");
    EXPECT_EQ(trash->displayName, ".Trash");
    EXPECT_EQ(trash->sizeInBytes, allocatedBytes(home() / ".Trash/a") + allocatedBytes(home() / ".Trash/.b"));
}

TEST_F(SystemJunkScannerTest, EmptyTrashYieldsNoItem)
{
    std::filesystem::create_directory(home() / ".Trash");
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkScannerTest, HiddenChildrenOfExpandedPlacesAreNotListed)
{
    for (const auto& place : { caches(), logs(), derivedData() }) {
        writeFile(place / ".hidden/file", std::size_t{ 5000 });
        writeFile(place / "shown/.inner", std::size_t{ 5000 });
    }
    const auto items = scanJunk();
    EXPECT_EQ(items.size(), 3U);
    for (const auto& item : items)
        EXPECT_EQ(item.displayName, "shown");
}

TEST_F(SystemJunkScannerTest, ChildrenThatOccupyNothingAreNotReported)
{
    std::filesystem::create_directories(caches() / "empty/inner");
    writeFile(caches() / "zero", std::string_view());
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkScannerTest, LargestComesFirstAndEqualSizesKeepTheOrderOfDiscovery)
{
    for (const char* name : { "c1", "c2", "c3", "c4" })
        writeFile(caches() / name, std::size_t{ 5000 });
    for (const char* name : { "l1", "l2", "l3" })
        writeFile(logs() / name, std::size_t{ 5000 });
    writeFile(logs() / "huge", std::size_t{ 100'000 });
    writeFile(derivedData() / "d1", std::size_t{ 5000 });
    std::vector<std::filesystem::path> expected{ logs() / "huge" };
    for (const auto& place : { caches(), logs(), derivedData() }) {
        for (const auto& child : host().files->contentsOfDirectory(place, HiddenFiles::Skipped)) {
            if (child.filename() != "huge")
                expected.push_back(child);
        }
    }
    EXPECT_EQ(urls(scanJunk()), expected);
}

TEST_F(SystemJunkScannerTest, ReportsBeforeEachMeasureAndAfterEachItem)
{
    writeFile(caches() / "zero", std::string_view());
    const auto cache = makeCache("cache");
    writeFile(home() / ".Trash/a", std::size_t{ 5000 });
    const auto cacheSize = FileSizeCalculator::totalSize(cache);
    const auto trashSize = FileSizeCalculator::totalSize(home() / ".Trash");
    (void)scanJunk();
    std::vector<ScanProgress> expected;
    ScanProgress found;
    for (const auto& child : host().files->contentsOfDirectory(caches(), HiddenFiles::Skipped)) {
        found.currentPath = child.string();
        expected.push_back(found);
        if (child == cache) {
            found = { child.string(), 1, cacheSize };
            expected.push_back(found);
        }
    }
    expected.push_back({ temporary().string(), 1, cacheSize });
    expected.push_back({ (home() / ".Trash").string(), 1, cacheSize });
    expected.push_back({ (home() / ".Trash").string(), 2, cacheSize + trashSize });
    EXPECT_EQ(reports(), expected);
}

} // namespace Korvane
