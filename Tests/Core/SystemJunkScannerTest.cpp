// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/SystemJunkScanner.h"

#include "Core/Scanning/FileSizeCalculator.h"
#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Korvane {

namespace {

class SystemJunkScannerTest : public ScanFixture {
protected:
    std::filesystem::path caches() const { return home() / "Library/Caches"; }
    std::filesystem::path logs() const { return home() / "Library/Logs"; }
    std::filesystem::path derivedData() const { return home() / "Library/Developer/Xcode/DerivedData"; }
    std::filesystem::path simulatorCaches() const { return home() / "Library/Developer/CoreSimulator/Caches"; }

    std::vector<ScanItem> scanJunk(const Cancellation& cancellation = {})
    {
        return scan(SystemJunkScanner(), cancellation);
    }

    std::filesystem::path makeCache(const std::string& name, std::size_t bytes = 5000)
    {
        writeFile(caches() / name / "data", bytes);
        return caches() / name;
    }

    /// Whether the cache folder of this name is found, and pre-selected.
    testing::AssertionResult isPreselected(const std::string& name)
    {
        const auto items = scanJunk();
        const auto* item = itemAt(items, caches() / name);
        if (item == nullptr)
            return testing::AssertionFailure() << name << " was not found";
        return item->selectableByDefault ? testing::AssertionSuccess() : testing::AssertionFailure();
    }
};

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

TEST_F(SystemJunkScannerTest, PlaceThatCannotBeListedContributesNothingAndTheScanGoesOn)
{
    makeCache("cache");
    writeFile(logs() / "run.log", std::size_t{ 5000 });
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeListing = [&](const std::filesystem::path& listed) {
        if (listed == caches())
            throw FileError(listed, std::make_error_code(std::errc::io_error));
    };
    host().files = files;
    EXPECT_EQ(urls(scanJunk()), std::vector{ logs() / "run.log" });
}

TEST_F(SystemJunkScannerTest, PlaceClosedToAnOrdinaryUserContributesNothing)
{
    makeCache("cache");
    writeFile(logs() / "run.log", std::size_t{ 5000 });
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(caches(), std::filesystem::perms::none);
    const auto found = runAsOrdinaryUser([&] {
        std::string names;
        for (const auto& item : scanJunk())
            names += item.displayName + ";";
        return names;
    });
    EXPECT_EQ(found, "run.log;");
}

TEST_F(SystemJunkScannerTest, ChildrenThatVanishBetweenListingAndMeasuringAreLeftOut)
{
    const auto first = makeCache("first");
    const auto second = makeCache("second");
    const auto items = SystemJunkScanner().scan(host(),
        [&](const ScanProgress&) {
            std::filesystem::remove_all(first);
            std::filesystem::remove_all(second);
        },
        {});
    EXPECT_TRUE(items.empty());
}

TEST_F(SystemJunkScannerTest, LinksAmongTheChildrenAreNotFollowed)
{
    const Sentinel sentinel(home() / "Documents/keep");
    writeFile(home() / "Documents/large", std::size_t{ 1'000'000 });
    std::filesystem::create_directories(caches());
    std::filesystem::create_directory_symlink(home() / "Documents", caches() / "link");
    for (const auto& item : scanJunk())
        EXPECT_EQ(item.sizeInBytes, allocatedBytes(caches() / "link"));
    EXPECT_EQ(sentinel.difference(), "");
}

TEST_F(SystemJunkScannerTest, LinkInPlaceOfAWholeFolderIsMeasuredAsALink)
{
    writeFile(home() / "elsewhere/large", std::size_t{ 1'000'000 });
    std::filesystem::create_directory_symlink(home() / "elsewhere", home() / ".Trash");
    const auto* trash = itemAt(scanJunk(), home() / ".Trash");
    if (trash != nullptr)
        EXPECT_EQ(trash->sizeInBytes, allocatedBytes(home() / ".Trash"));
    else
        EXPECT_EQ(allocatedBytes(home() / ".Trash"), 0);
}

TEST_F(SystemJunkScannerTest, LinkThatLeadsNowhereInPlaceOfAFolderIsPassedOver)
{
    std::filesystem::create_directories(home() / "Library");
    std::filesystem::create_directory_symlink(home() / "missing", caches());
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkScannerTest, NamesThatAreNoTextAreFoundAndShown)
{
    const auto cache = makeCache("bad\xff");
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].url, cache);
    EXPECT_EQ(items[0].displayName, "bad\uFFFD");
    EXPECT_TRUE(items[0].selectableByDefault);
}

TEST_F(SystemJunkScannerTest, CancelledBeforeItBeginsThrows)
{
    makeCache("cache");
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)scanJunk(cancellation), CancellationError);
    EXPECT_TRUE(reports().empty());
}

TEST_F(SystemJunkScannerTest, CancelledMidwayThrowsBeforeTheNextChild)
{
    for (int i = 0; i < 20; ++i)
        makeCache("cache" + std::to_string(i));
    const Cancellation cancellation;
    int calls = 0;
    const auto cancelLater = [&](const ScanProgress&) {
        if (++calls == 6)
            cancellation.cancel();
    };
    EXPECT_THROW((void)SystemJunkScanner().scan(host(), cancelLater, cancellation), CancellationError);
    EXPECT_EQ(calls, 6);
}

TEST_F(SystemJunkScannerTest, TemporaryDirectoryInsideTheHomeFolderIsOneItem)
{
    auto environment = host().environment;
    environment.temporaryDirectory = home() / "tmp";
    host().files = makeFileManager(environment);
    writeFile(home() / "tmp/file", std::size_t{ 5000 });
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].url, home() / "tmp");
    EXPECT_EQ(items[0].displayName, "tmp");
    EXPECT_FALSE(items[0].selectableByDefault);
}

TEST_F(SystemJunkScannerTest, MissingHomeYieldsNothing)
{
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [&] { return folder() / "no such home"; };
    host().files = files;
    makeCache("cache");
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkScannerTest, RelativeHomeLeadsNowhere)
{
    makeCache("cache");
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    host().files = files;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder().path());
    for (const char* relative : { "home", ".", "" }) {
        files->home = [relative] { return std::filesystem::path(relative); };
        EXPECT_TRUE(scanJunk().empty());
    }
    std::filesystem::current_path(before);
}

TEST_F(SystemJunkScannerTest, RootAsHomeIsScannedLikeAnyOther)
{
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [] { return std::filesystem::path("/"); };
    host().files = files;
    for (const auto& item : scanJunk())
        EXPECT_TRUE(item.url.is_absolute());
}

TEST_F(SystemJunkScannerTest, ScanChangesNothing)
{
    const Sentinel cache(caches() / "cache/data");
    const Sentinel log(logs() / "run.log");
    const Sentinel trash(home() / ".Trash/old");
    EXPECT_EQ(scanJunk().size(), 3U);
    EXPECT_EQ(cache.difference() + log.difference() + trash.difference(), "");
}

} // namespace Korvane
