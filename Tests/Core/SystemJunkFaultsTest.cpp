// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileError.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/SystemJunkFixture.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

namespace Korvane {

namespace {

/// System Junk where something is missing, closed, changing or stopped.
class SystemJunkFaultsTest : public SystemJunkFixture { };

} // namespace

TEST_F(SystemJunkFaultsTest, PlaceThatCannotBeListedContributesNothingAndTheScanGoesOn)
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

TEST_F(SystemJunkFaultsTest, PlaceClosedToAnOrdinaryUserContributesNothing)
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

TEST_F(SystemJunkFaultsTest, ChildrenThatVanishBetweenListingAndMeasuringAreLeftOut)
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

TEST_F(SystemJunkFaultsTest, LinksAmongTheChildrenAreNotFollowed)
{
    const Sentinel sentinel(home() / "Documents/keep");
    writeFile(home() / "Documents/large", std::size_t{ 1'000'000 });
    std::filesystem::create_directories(caches());
    std::filesystem::create_directory_symlink(home() / "Documents", caches() / "link");
    for (const auto& item : scanJunk())
        EXPECT_EQ(item.sizeInBytes, allocatedBytes(caches() / "link"));
    EXPECT_EQ(sentinel.difference(), "");
}

TEST_F(SystemJunkFaultsTest, LinkInPlaceOfAWholeFolderIsMeasuredAsALink)
{
    writeFile(home() / "elsewhere/large", std::size_t{ 1'000'000 });
    std::filesystem::create_directory_symlink(home() / "elsewhere", home() / ".Trash");
    const auto* trash = itemAt(scanJunk(), home() / ".Trash");
    if (trash != nullptr)
        EXPECT_EQ(trash->sizeInBytes, allocatedBytes(home() / ".Trash"));
    else
        EXPECT_EQ(allocatedBytes(home() / ".Trash"), 0);
}

TEST_F(SystemJunkFaultsTest, LinkThatLeadsNowhereInPlaceOfAFolderIsPassedOver)
{
    std::filesystem::create_directories(home() / "Library");
    std::filesystem::create_directory_symlink(home() / "missing", caches());
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkFaultsTest, NamesThatAreNoTextAreFoundAndShown)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto cache = makeCache("bad\xff");
    const auto items = scanJunk();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].url, cache);
    EXPECT_EQ(items[0].displayName, "bad\uFFFD");
    EXPECT_TRUE(items[0].selectableByDefault);
}

TEST_F(SystemJunkFaultsTest, CancelledBeforeItBeginsThrows)
{
    makeCache("cache");
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)scanJunk(cancellation), CancellationError);
    EXPECT_TRUE(reports().empty());
}

TEST_F(SystemJunkFaultsTest, CancelledMidwayThrowsBeforeTheNextChild)
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

TEST_F(SystemJunkFaultsTest, CancelledWhileAFolderIsListedThrowsBeforeItsFirstChild)
{
    makeCache("cache");
    const Cancellation cancellation;
    const auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->beforeListing = [&](const std::filesystem::path&) { cancellation.cancel(); };
    host().files = files;
    EXPECT_THROW((void)scanJunk(cancellation), CancellationError);
    EXPECT_TRUE(reports().empty());
}

TEST_F(SystemJunkFaultsTest, TemporaryDirectoryInsideTheHomeFolderIsOneItem)
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

TEST_F(SystemJunkFaultsTest, MissingHomeYieldsNothing)
{
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [&] { return folder() / "no such home"; };
    host().files = files;
    makeCache("cache");
    EXPECT_TRUE(scanJunk().empty());
}

TEST_F(SystemJunkFaultsTest, RelativeHomeLeadsNowhere)
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

TEST_F(SystemJunkFaultsTest, RootAsHomeIsScannedLikeAnyOther)
{
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [] { return std::filesystem::path("/"); };
    host().files = files;
    for (const auto& item : scanJunk())
        EXPECT_TRUE(item.url.is_absolute());
}

TEST_F(SystemJunkFaultsTest, ScanChangesNothing)
{
    const Sentinel cache(caches() / "cache/data");
    const Sentinel log(logs() / "run.log");
    const Sentinel trash(home() / ".Trash/old");
    EXPECT_EQ(scanJunk().size(), 3U);
    EXPECT_EQ(cache.difference() + log.difference() + trash.difference(), "");
}

} // namespace Korvane
