// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Scanning/LargeFilesScanner.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/PrivateMounts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr std::size_t mebibyte = 1'048'576;

/// Files on a file system that compresses them. EROFS, because it counts the blocks that are left of a file; Btrfs
/// counts those that it would have without.
class CompressedFilesTest : public ScanFixture {
protected:
    bool run(const std::string& command) const
    {
        const auto quiet = "PATH=$PATH:/usr/sbin:/sbin; cd '" + folder().path().native() + "' && " + command;
        return std::system((quiet + " >/dev/null 2>&1").c_str()) == 0;
    }

    static std::string noise(std::size_t size)
    {
        std::minstd_rand numbers(1);
        std::string bytes;
        while (bytes.size() < size)
            bytes += static_cast<char>(numbers() >> 8);
        return bytes;
    }

    /// What a scan finds at this threshold on the mounted home: names and whether their sizes are those on disk.
    std::string found(std::int64_t threshold)
    {
        std::string text;
        for (const auto& item : scan(LargeFilesScanner(threshold, 10)))
            text += item.displayName + (item.sizeInBytes == allocatedBytes(item.url) ? " as allocated, " : ", ");
        return text;
    }
};

} // namespace

TEST_F(CompressedFilesTest, AreJudgedByTheirAllocatedSize)
{
    if (geteuid() != 0 || !canMountPrivately())
        GTEST_SKIP() << "only root can mount an image of a file system";
    writeFile(folder() / "content/text.log", std::string(8 * mebibyte, 'x'));
    writeFile(folder() / "content/noise", noise(2 * mebibyte));
    if (!run("mkfs.erofs -zlz4 image content"))
        GTEST_SKIP() << "there is no mkfs.erofs here that compresses (package erofs-utils)";
    const auto answer = runWithPrivateMounts([this]() -> std::string {
        if (!run("mount -o loop,ro image '" + home().native() + "'"))
            return "not mounted";
        return std::to_string(std::filesystem::file_size(home() / "text.log")) + ": " + found(mebibyte) + "| "
            + found(4096);
    });
    if (answer == "not mounted")
        GTEST_SKIP() << "this machine mounts no image of EROFS";
    EXPECT_EQ(answer, "8388608: noise as allocated, | noise as allocated, text.log as allocated, ");
}

} // namespace Korvane
