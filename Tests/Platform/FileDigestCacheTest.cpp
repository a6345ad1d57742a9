// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/DigestFile.h"
#include "Tests/Platform/DigestFixture.h"
#include "Tests/Platform/PageCache.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <optional>
#include <thread>

#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t mebibyte = 1'048'576;
constexpr std::int64_t prefix = 4 * mebibyte;

/// What a digest leaves in the system's cache, on a disk: a file system in memory forgets nothing.
class FileDigestCacheTest : public DigestFixture {
protected:
    void SetUp() override
    {
        if (!canBeForgotten(folder / "probe"))
            GTEST_SKIP() << folder.path() << " lies in memory: what its files leave there cannot be seen";
    }

    /// A file that is on disk and nowhere else.
    std::filesystem::path makeCold(const std::string& name, std::size_t size) const
    {
        auto path = make(name, std::string(size, 'c'));
        forget(path);
        EXPECT_EQ(pagesInMemory(path), 0U) << name;
        return path;
    }
};

/// Files that the one who hashes them may read, and neither owns nor may write.
class FileDigestOfOthersTest : public FileDigestCacheTest {
protected:
    void SetUp() override
    {
        FileDigestCacheTest::SetUp();
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can make files that belong to somebody else";
        std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    }

    static std::size_t pageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

    static std::string hashAsOrdinaryUser(const std::filesystem::path& file, std::int64_t bytes)
    {
        return runAsOrdinaryUser([&] { return prefixHash(file, bytes).value_or("none"); });
    }
};

/// How many bytes this process has taken in by reading so far (proc_pid_io(5)).
std::int64_t bytesRead()
{
    std::ifstream counters("/proc/self/io");
    std::string name;
    std::int64_t value = -1;
    while (counters >> name >> value && name != "rchar:") { }
    return value;
}

} // namespace

TEST_F(DigestFixture, NothingIsReadTwiceOrBeyondThePrefix)
{
    const std::vector files{ make("short", std::string(1000, 's')), make("exact", std::string(mebibyte, 'e')),
        make("long", std::string(9 * mebibyte, 'l')) };
    prefixHash(make("first", ""), prefix); // The library reads its settings once.
    const auto before = bytesRead();
    const auto counting = bytesRead() - before;
    const auto start = bytesRead();
    prefixHashes(files, prefix);
    const auto read = bytesRead() - start - counting;
    // The figures of the counters themselves may take a digit more from one look to the next.
    EXPECT_NEAR(static_cast<double>(read), static_cast<double>(1000 + mebibyte + prefix), 16);
}

TEST_F(FileDigestCacheTest, ColdFilesAreNotInMemoryAfterwards)
{
    std::vector<std::filesystem::path> files;
    for (const std::size_t size : { std::size_t{ 1 }, std::size_t{ 4096 }, mebibyte - 1, mebibyte, 3 * mebibyte + 77,
             4 * mebibyte, 9 * mebibyte, 12 * mebibyte + 1 })
        files.push_back(makeCold(std::to_string(size), size));
    prefixHashes(files, prefix);
    for (const auto& file : files)
        EXPECT_EQ(pagesInMemory(file), 0U) << file;
}

TEST_F(FileDigestCacheTest, OddAndLargePrefixesOfColdFilesAreNotInMemoryAfterwards)
{
    for (const std::int64_t bytes : { std::int64_t{ 1 }, std::int64_t{ 5000 }, std::int64_t{ 30'000'000 } }) {
        const auto file = makeCold("file", 20 * mebibyte);
        EXPECT_TRUE(prefixHash(file, bytes));
        EXPECT_EQ(pagesInMemory(file), 0U) << bytes;
    }
}

TEST_F(FileDigestCacheTest, FileThatWasInMemoryStays)
{
    const auto file = makeCold("file", 6 * mebibyte);
    const auto content = readFile(file);
    const auto before = pagesInMemory(file);
    EXPECT_EQ(before, pagesOf(6 * mebibyte));
    EXPECT_TRUE(prefixHash(file, prefix));
    EXPECT_EQ(pagesInMemory(file), before);
}

TEST_F(FileDigestCacheTest, PartThatWasInMemoryStaysAndTheRestDoesNot)
{
    const auto file = makeCold("file", 4 * mebibyte);
    readInto(file, mebibyte, mebibyte / 2);
    readInto(file, 3 * mebibyte, mebibyte / 4);
    const auto before = pagesInMemory(file);
    EXPECT_EQ(before, pagesOf(mebibyte / 2) + pagesOf(mebibyte / 4));
    EXPECT_TRUE(prefixHash(file, prefix));
    EXPECT_EQ(pagesInMemory(file), before);
}

TEST_F(FileDigestCacheTest, UnsavedBytesAreLeftAlone)
{
    const auto content = std::string(2 * mebibyte, 'u');
    const auto file = make("unsaved", content);
    const auto before = pagesInMemory(file);
    EXPECT_TRUE(prefixHash(file, prefix));
    EXPECT_EQ(pagesInMemory(file), before);
    EXPECT_TRUE(readFile(file) == content);
}

TEST_F(FileDigestCacheTest, ColdFileOfManyNamesIsNotInMemoryAfterwards)
{
    std::vector files{ makeCold("a", 2 * mebibyte) };
    for (const char* name : { "b", "c", "d" }) {
        std::filesystem::create_hard_link(files[0], folder / name);
        files.push_back(folder / name);
    }
    const auto hashes = prefixHashes(files, prefix);
    EXPECT_EQ(hashes, std::vector(4, hashes[0]));
    EXPECT_EQ(pagesInMemory(files[0]), 0U);
}

TEST_F(FileDigestCacheTest, ScanThatIsGivenUpLeavesNothingInMemory)
{
    std::vector<std::filesystem::path> files;
    for (int i = 0; i < 6; ++i)
        files.push_back(makeCold(std::to_string(i), mebibyte));
    {
        const auto pathAt = [&](std::size_t index) -> const std::filesystem::path& { return files[index]; };
        FileDigest digest(files.size(), pathAt, prefix);
        EXPECT_TRUE(digest.nextPrefixHash());
    }
    // Later ones may be on their way from the disk still: nobody waits for them to throw them away.
    EXPECT_EQ(pagesInMemory(files[0]), 0U);
}

TEST_F(FileDigestOfOthersTest, ColdFilesAreNotInMemoryAfterwards)
{
    for (const std::size_t size : { std::size_t{ 1 }, std::size_t{ 5000 }, mebibyte, 9 * mebibyte + 1 }) {
        const auto file = makeCold(std::to_string(size), size);
        const auto hash = hashAsOrdinaryUser(file, prefix);
        EXPECT_EQ(pagesInMemory(file), 0U) << size;
        EXPECT_EQ(hash, prefixHash(file, prefix)) << size;
    }
    const auto file = makeCold("odd prefix", mebibyte);
    hashAsOrdinaryUser(file, 5000);
    EXPECT_EQ(pagesInMemory(file), 0U);
}

TEST_F(FileDigestOfOthersTest, FileThatWasInMemoryStays)
{
    const auto file = makeCold("file", 2 * mebibyte);
    const auto content = readFile(file);
    EXPECT_EQ(hashAsOrdinaryUser(file, prefix), prefixHash(file, prefix));
    EXPECT_EQ(pagesInMemory(file), pagesOf(content.size()));
}

TEST_F(FileDigestOfOthersTest, FileOfWhichAPartWasInMemoryStays)
{
    for (const std::size_t offset : { std::size_t{ 0 }, mebibyte, 2 * mebibyte - pageSize() }) {
        const auto file = makeCold("file", 2 * mebibyte);
        readInto(file, offset, pageSize());
        EXPECT_EQ(pagesInMemory(file), 1U);
        hashAsOrdinaryUser(file, prefix);
        EXPECT_EQ(pagesInMemory(file), pagesOf(2 * mebibyte)) << offset;
    }
}

TEST_F(FileDigestOfOthersTest, SystemIsToldAhead)
{
    const auto file = makeCold("file", 2 * mebibyte);
    const auto answer = runAsOrdinaryUser([&] {
        const auto ranges = DigestFile(file).tellAhead({ 0, prefix }, {});
        return std::to_string(ranges.size());
    });
    EXPECT_EQ(answer, "1");
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (pagesInMemory(file) < pagesOf(2 * mebibyte) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_EQ(pagesInMemory(file), pagesOf(2 * mebibyte));
}

} // namespace Korvane
