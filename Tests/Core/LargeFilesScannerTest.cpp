// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/LargeFilesScanner.h"

#include "Core/Scanning/ScanExclusions.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Core/WalkOrder.h"
#include "Tests/Support/NamesOfAnyBytes.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/ReserveSpace.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::int64_t mebibyte = 1'048'576;

class LargeFilesScannerTest : public ScanFixture {
protected:
    std::vector<std::filesystem::path> find(std::int64_t threshold = 10'000)
    {
        return urls(scan(LargeFilesScanner(threshold)));
    }

    std::filesystem::path makeLarge(const std::filesystem::path& relative, std::size_t bytes = 20'000) const
    {
        writeFile(home() / relative, bytes);
        return home() / relative;
    }
};

} // namespace

TEST_F(LargeFilesScannerTest, FileOfExactlyTheThresholdIsReportedAndASmallerOneIsNot)
{
    if (!writeAllocatedFile(home() / "exact", 100 * mebibyte)
        || !writeAllocatedFile(home() / "smaller", 100 * mebibyte - 4096))
        GTEST_SKIP() << "this file system cannot allocate a file to the byte";
    const auto items = scan(LargeFilesScanner());
    ASSERT_EQ(urls(items), std::vector{ home() / "exact" });
    EXPECT_EQ(items[0].sizeInBytes, 104'857'600);
}

TEST_F(LargeFilesScannerTest, ThresholdIsInclusiveToTheByte)
{
    const auto file = makeLarge("file");
    const auto size = allocatedBytes(file);
    EXPECT_EQ(find(size), std::vector{ file });
    EXPECT_TRUE(find(size + 1).empty());
}

TEST_F(LargeFilesScannerTest, FilesInTheLibraryAreNeverReported)
{
    makeLarge("Library/large");
    makeLarge("Library/Caches/deep/large");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, OnlyTheLibraryOfTheHomeFolderIsPassedOver)
{
    const auto similar = makeLarge("Library 2/large");
    const auto nested = makeLarge("Documents/Library/large");
    const auto lower = makeLarge("library/large");
    const auto found = find();
    EXPECT_EQ(found.size(), 3U);
    for (const auto& path : { similar, nested, lower })
        EXPECT_NE(std::find(found.begin(), found.end(), path), found.end()) << path;
}

TEST_F(LargeFilesScannerTest, FileNamedLibraryIsPassedOverToo)
{
    makeLarge("Library");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, FilesInDependencyFoldersAreNeverReported)
{
    for (const auto& name : ScanExclusions::dependencyDirNames())
        makeLarge(std::filesystem::path("project") / name / "deep/large");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, FileNamedLikeADependencyFolderIsReported)
{
    const auto file = makeLarge("target");
    EXPECT_EQ(find(), std::vector{ file });
}

TEST_F(LargeFilesScannerTest, HiddenFilesAndFilesInHiddenFoldersAreNeverReported)
{
    makeLarge(".large");
    makeLarge(".hidden/large");
    makeLarge("shown/.hidden/deep/large");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, FilesInPackagesAreNeverReported)
{
    makeLarge("Applications/Editor.app/Contents/large");
    makeLarge("Pictures/Photos.photoslibrary/originals/large");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, FileWithAPackageExtensionIsAFile)
{
    const auto file = makeLarge("Editor.app");
    EXPECT_EQ(find(), std::vector{ file });
}

TEST_F(LargeFilesScannerTest, SparseFileIsJudgedByWhatItOccupies)
{
    writeSparseFile(home() / "sparse", std::int64_t{ 1 } << 40);
    EXPECT_TRUE(scan(LargeFilesScanner()).empty());
}

TEST_F(LargeFilesScannerTest, PreallocatedFileIsJudgedByWhatItOccupies)
{
    writeFile(home() / "allocated", std::string_view());
    const int descriptor = open((home() / "allocated").c_str(), O_WRONLY | O_CLOEXEC);
    const bool isAllocated = reserveSpace(descriptor, mebibyte) && ftruncate(descriptor, 10) == 0;
    close(descriptor);
    if (!isAllocated)
        GTEST_SKIP() << "this file system cannot allocate beyond the end of a file";
    EXPECT_EQ(std::filesystem::file_size(home() / "allocated"), 10U);
    EXPECT_EQ(find(mebibyte), std::vector{ home() / "allocated" });
}

TEST_F(LargeFilesScannerTest, LinksAreNeverFollowedOrReported)
{
    writeFile(folder() / "outside/large", std::size_t{ 20'000 });
    std::filesystem::create_directory_symlink(folder() / "outside", home() / "folder link");
    std::filesystem::create_symlink(folder() / "outside/large", home() / "file link");
    std::filesystem::create_directory_symlink(home(), home() / "loop");
    EXPECT_TRUE(find().empty());
}

TEST_F(LargeFilesScannerTest, EachNameOfAFileIsReported)
{
    makeLarge("one");
    std::filesystem::create_hard_link(home() / "one", home() / "two");
    EXPECT_EQ(find().size(), 2U);
}

TEST_F(LargeFilesScannerTest, ItemsAreLargeFilesThatAreNeverPreselected)
{
    const auto file = makeLarge("Movies/film.mkv");
    const auto items = scan(LargeFilesScanner(10'000));
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].url, file);
    EXPECT_EQ(items[0].displayName, "film.mkv");
    EXPECT_EQ(items[0].category, "Large Files");
    EXPECT_EQ(items[0].sizeInBytes, allocatedBytes(file));
    EXPECT_FALSE(items[0].selectableByDefault);
}

TEST_F(LargeFilesScannerTest, TheThreeHundredLargestAreKept)
{
    std::vector<std::filesystem::path> expected;
    for (std::size_t i = 0; i < 301; ++i)
        makeLarge("f" + std::to_string(i), 20'000 + i * 4096);
    const auto found = find();
    ASSERT_EQ(found.size(), 300U);
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i], home() / ("f" + std::to_string(300 - i)));
}

TEST_F(LargeFilesScannerTest, OfEqualSizesTheOneWalkedEarlierTakesTheLastPlace)
{
    for (int i = 0; i < 301; ++i)
        makeLarge("d" + std::to_string(i % 7) + "/f" + std::to_string(i));
    std::vector<std::filesystem::path> files;
    for (const auto& entry : walkOrder(home())) {
        if (std::filesystem::is_regular_file(entry.path))
            files.push_back(entry.path);
    }
    ASSERT_EQ(files.size(), 301U);
    files.pop_back();
    EXPECT_EQ(find(), files);
}

TEST_F(LargeFilesScannerTest, NoResultsAreKeptWhenNoneAreWanted)
{
    makeLarge("large");
    EXPECT_TRUE(scan(LargeFilesScanner(10'000, 0)).empty());
    EXPECT_TRUE(scan(LargeFilesScanner(10'000, -1)).empty());
}

TEST_F(LargeFilesScannerTest, ReportsAtEvery512thEntryAndForEachItem)
{
    for (int i = 0; i < 1100; ++i)
        writeFile(home() / ("d" + std::to_string(i % 30)) / ("f" + std::to_string(i)), std::size_t{ 10 });
    const auto large = makeLarge("d3/large");
    (void)find();
    std::vector<ScanProgress> expected;
    ScanProgress found;
    std::size_t visited = 0;
    for (const auto& entry : walkOrder(home())) {
        if (visited++ % 512 == 0) {
            found.currentPath = entry.parent.string();
            expected.push_back(found);
        }
        if (entry.path == large) {
            found.itemsFound = 1;
            found.bytesFound = allocatedBytes(large);
            expected.push_back(found);
        }
    }
    EXPECT_GE(expected.size(), 4U);
    EXPECT_EQ(reports(), expected);
}

TEST_F(LargeFilesScannerTest, UnreadableFolderIsPassedOver)
{
    makeLarge("closed/large");
    makeLarge("open/large");
    giveToOrdinaryUser(folder().path());
    std::filesystem::permissions(home() / "closed", std::filesystem::perms::none);
    const auto found = runAsOrdinaryUser([&] {
        const auto paths = find();
        return paths.size() == 1 ? paths[0].string() : std::to_string(paths.size());
    });
    EXPECT_EQ(found, home() / "open/large");
}

TEST_F(LargeFilesScannerTest, CancelledScanThrows)
{
    makeLarge("large");
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW((void)scan(LargeFilesScanner(), cancellation), CancellationError);
}

TEST_F(LargeFilesScannerTest, CancelledMidwayThrows)
{
    for (int i = 0; i < 1500; ++i)
        writeFile(home() / ("f" + std::to_string(i)), std::size_t{ 1 });
    const Cancellation cancellation;
    int calls = 0;
    const auto cancelAtSecondMark = [&](const ScanProgress&) {
        if (++calls == 2)
            cancellation.cancel();
    };
    EXPECT_THROW((void)LargeFilesScanner().scan(host(), cancelAtSecondMark, cancellation), CancellationError);
    EXPECT_EQ(calls, 2);
}

TEST_F(LargeFilesScannerTest, NamesThatAreNoTextAreFoundAndShown)
{
    if (!takesNamesOfAnyBytes(home()))
        GTEST_SKIP() << "this volume takes only names that are UTF-8";
    const auto file = makeLarge("bad\xff.bin");
    const auto items = scan(LargeFilesScanner(10'000));
    ASSERT_EQ(urls(items), std::vector{ file });
    EXPECT_EQ(items[0].displayName, "bad\uFFFD.bin");
}

TEST_F(LargeFilesScannerTest, HomeThatIsMissingOrRelativeYieldsNothing)
{
    makeLarge("large");
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    host().files = files;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder().path());
    for (const auto& wrong : { folder() / "missing", std::filesystem::path("home"), std::filesystem::path() }) {
        files->home = [wrong] { return wrong; };
        EXPECT_TRUE(find().empty()) << wrong;
        EXPECT_TRUE(reports().empty());
    }
    std::filesystem::current_path(before);
}

TEST_F(LargeFilesScannerTest, HomeWithASlashBehindItFindsTheSamePaths)
{
    makeLarge("Library/large");
    const auto file = makeLarge("large");
    auto files = std::make_shared<ForwardingFileManager>(host().files);
    files->home = [this] { return home() / ""; };
    host().files = files;
    EXPECT_EQ(find(), std::vector{ file });
}

TEST_F(LargeFilesScannerTest, ScanChangesNothing)
{
    const Sentinel sentinel(home() / "Documents/keep");
    EXPECT_EQ(find(1).size(), 1U);
    EXPECT_EQ(sentinel.difference(), "");
}

} // namespace Korvane
