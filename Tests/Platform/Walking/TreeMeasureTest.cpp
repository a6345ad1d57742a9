// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TreeMeasure.h"

#include "Tests/Platform/Walking/PlainWalk.h"
#include "Tests/Platform/Walking/RandomTree.h"
#include "Tests/Support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace Korvane {
namespace {

namespace fs = std::filesystem;

class TreeMeasureTest : public testing::Test {
protected:
    TemporaryFolder m_folder;
};

std::int64_t blocksOf(const fs::path& path)
{
    struct stat status { };
    EXPECT_EQ(::lstat(path.c_str(), &status), 0);
    return std::int64_t{ status.st_blocks } * 512;
}

TEST(TreeMeasureRandomTest, AgreesWithAPlainRecursion)
{
    std::int64_t total = 0;
    for (std::uint32_t seed = 1000; seed < 1150; ++seed) {
        // Both kinds of file system that the machine offers have a say.
        const TemporaryFolder folder(seed % 4 == 0 ? fs::temp_directory_path() : placeForLargeTrees());
        const RandomTree tree(folder.path(), seed, 10 + static_cast<int>(seed) % 190);
        const auto expected = allocatedPlainly(folder.path());
        ASSERT_EQ(totalAllocatedSize(folder.path()), expected) << "seed " << seed;
        total += expected;
    }
    EXPECT_GT(total, 0);
}

TEST_F(TreeMeasureTest, AgreesWithAPlainRecursionOnALargeTreeEveryTime)
{
    const TemporaryFolder folder(placeForLargeTrees());
    const RandomTree tree(folder.path(), 5, 15'000);
    const auto expected = allocatedPlainly(folder.path());
    for (int run = 0; run < 15; ++run)
        ASSERT_EQ(totalAllocatedSize(folder.path()), expected);
}

TEST_F(TreeMeasureTest, MeasuresFromSeveralThreadsAtOnce)
{
    const TemporaryFolder folder(placeForLargeTrees());
    const RandomTree tree(folder.path(), 6, 4'000);
    const auto expected = allocatedPlainly(folder.path());
    std::atomic<int> right{ 0 };
    std::vector<std::thread> threads;
    for (int index = 0; index < 6; ++index) {
        threads.emplace_back([&] {
            for (int run = 0; run < 4; ++run)
                right += totalAllocatedSize(folder.path()) == expected ? 1 : 0;
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(right, 24);
}

TEST_F(TreeMeasureTest, GivesNothingForWhatIsMissingOrEmpty)
{
    EXPECT_EQ(totalAllocatedSize(m_folder / "missing"), 0);
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), 0);
    EXPECT_EQ(totalAllocatedSize({}), 0);
    fs::create_directories(m_folder / "only/folders");
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), 0);
}

TEST_F(TreeMeasureTest, CountsBlocksNotBytes)
{
    writeFile(m_folder / "small", "x");
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), blocksOf(m_folder / "small"));
    EXPECT_EQ(totalAllocatedSize(m_folder / "small"), blocksOf(m_folder / "small"));
    EXPECT_GT(totalAllocatedSize(m_folder / "small"), 1);
    writeFile(m_folder / "sparse/hole", "x");
    fs::resize_file(m_folder / "sparse/hole", 1'000'000'000);
    EXPECT_EQ(totalAllocatedSize(m_folder / "sparse"), blocksOf(m_folder / "sparse/hole"));
    EXPECT_LT(totalAllocatedSize(m_folder / "sparse"), 1'000'000);
}

TEST_F(TreeMeasureTest, CountsHiddenFilesPackagesAndDependencies)
{
    writeFile(m_folder / ".git/objects/1", "x");
    writeFile(m_folder / "Tool.app/Contents/tool", "x");
    writeFile(m_folder / "node_modules/module", "x");
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), 3 * blocksOf(m_folder / ".git/objects/1"));
}

TEST_F(TreeMeasureTest, CountsEveryNameOfAFile)
{
    writeFile(m_folder / "a/file", "x");
    fs::create_hard_link(m_folder / "a/file", m_folder / "a/again");
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), 2 * blocksOf(m_folder / "a/file"));
}

TEST_F(TreeMeasureTest, MeasuresLinksAsLinksAndFollowsNone)
{
    writeFile(m_folder / "tree/file", "x");
    fs::create_directory_symlink("tree", m_folder / "short");
    const auto longTarget = "tree/" + std::string(100, 'd') + "/..";
    fs::create_directory(m_folder / "tree" / std::string(100, 'd'));
    fs::create_directory_symlink(longTarget, m_folder / "long");
    EXPECT_EQ(totalAllocatedSize(m_folder / "short"), blocksOf(m_folder / "short"));
    EXPECT_EQ(totalAllocatedSize(m_folder / "long"), blocksOf(m_folder / "long"));
    fs::create_symlink(std::string(100, 'n'), m_folder / "dangling");
    EXPECT_EQ(totalAllocatedSize(m_folder / "dangling"), 0) << "nothing exists there";
    fs::create_directory_symlink(m_folder.path(), m_folder / "tree/loop");
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), blocksOf(m_folder / "tree/file"));
}

TEST_F(TreeMeasureTest, CountsNothingForPipesAndSockets)
{
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (m_folder / "socket").native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(descriptor);
    EXPECT_EQ(totalAllocatedSize(m_folder.path()), 0);
    EXPECT_EQ(totalAllocatedSize(m_folder / "pipe"), 0);
    EXPECT_EQ(totalAllocatedSize(m_folder / "socket"), 0);
}

TEST_F(TreeMeasureTest, ThrowsWhenCancelledBefore)
{
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(totalAllocatedSize(m_folder.path(), cancellation), CancellationError);
}

} // namespace
} // namespace Korvane
