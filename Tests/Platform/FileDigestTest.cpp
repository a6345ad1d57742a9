// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileDigest.h"

#include "Platform/Sha256.h"
#include "Tests/Platform/DigestFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

using namespace std::chrono_literals;

namespace {

/// The digests of "" and "abc" as FIPS 180-4 prints them.
constexpr const char* digestOfNothing = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";
constexpr const char* digestOfAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

class FileDigestTest : public DigestFixture { };

std::string digestOf(const std::string& bytes)
{
    Sha256 sha256;
    sha256.update(bytes.data(), bytes.size());
    return sha256.finalize();
}

} // namespace

TEST(Sha256Test, VectorsOfTheStandard)
{
    EXPECT_EQ(digestOf(""), digestOfNothing);
    EXPECT_EQ(digestOf("abc"), digestOfAbc);
    EXPECT_EQ(
        digestOf(std::string(1'000'000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256Test, PiecesGiveTheDigestOfTheWhole)
{
    Sha256 sha256;
    for (const char* piece : { "a", "", "bc" })
        sha256.update(piece, std::string_view(piece).size());
    EXPECT_EQ(sha256.finalize(), digestOfAbc);
}

TEST_F(FileDigestTest, WholeFileIsHashedWhenItIsShorterThanThePrefix)
{
    EXPECT_EQ(prefixHash(make("abc", "abc"), 100), digestOfAbc);
    EXPECT_EQ(prefixHash(make("empty", ""), 100), digestOfNothing);
}

TEST_F(FileDigestTest, OnlyThePrefixIsHashed)
{
    EXPECT_EQ(prefixHash(make("file", "abcdef"), 3), digestOfAbc);
    EXPECT_EQ(prefixHash(make("file", "abcdef"), 0), digestOfNothing);
    EXPECT_EQ(prefixHash(make("file", "abcdef"), -1), digestOfNothing);
}

TEST_F(FileDigestTest, PrefixLargerThanOneReadIsHashedWhole)
{
    std::string content(9'000'001, 'x');
    content[8'999'999] = 'y';
    const auto file = make("large", content);
    EXPECT_EQ(prefixHash(file, 16'000'000), digestOf(content));
    EXPECT_EQ(prefixHash(file, 8'500'000), digestOf(content.substr(0, 8'500'000)));
}

TEST_F(FileDigestTest, FilesAndPrefixesThatEndAtTheEdgeOfAPieceAreHashedWhole)
{
    // A disk is waited for 256 KiB at a time, and the system is told of 4 MiB at a time.
    for (const std::size_t edge : { 262'144U, 524'288U, 4'194'304U }) {
        for (const std::size_t size : { edge - 1, edge, edge + 1 }) {
            std::string content(size, 'x');
            content.back() = 'y';
            const auto file = make("edge", content);
            for (const std::size_t prefix : { edge - 1, edge, edge + 1 })
                EXPECT_EQ(prefixHash(file, static_cast<std::int64_t>(prefix)), digestOf(content.substr(0, prefix)))
                    << size << " bytes, of which " << prefix << " count";
        }
    }
}

TEST_F(FileDigestTest, FilesAreGivenInTheirOrder)
{
    std::vector<std::filesystem::path> files;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < 300; ++i) {
        const auto content = std::string(i * 37 % 500, 'x') + std::to_string(i);
        files.push_back(make(std::to_string(i), content));
        expected.push_back(digestOf(content.substr(0, 400)));
    }
    files.insert(files.begin() + 20, { folder / "missing", folder.path() });
    expected.insert(expected.begin() + 20, 2, "none");
    EXPECT_EQ(prefixHashes(files, 400), expected);
}

TEST_F(FileDigestTest, WhatIsNoRegularFileHasNoDigest)
{
    make("target", "abc");
    std::filesystem::create_symlink(folder / "target", folder / "link");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const char* name : { "link", "pipe", "", "missing" })
        EXPECT_EQ(prefixHash(folder / name, 100), std::nullopt) << name;
    EXPECT_EQ(prefixHash("/dev/null", 100), std::nullopt);
}

TEST_F(FileDigestTest, FileThatCannotBeReadHasNoDigest)
{
    const auto file = make("closed", "abc");
    giveToOrdinaryUser(folder.path());
    std::filesystem::permissions(file, std::filesystem::perms::none);
    EXPECT_EQ(runAsOrdinaryUser([&] { return prefixHash(file, 10).value_or("none"); }), "none");
}

TEST_F(FileDigestTest, FileOfSomebodyElseThatCanBeReadHasADigest)
{
    const auto file = make("foreign", "abc");
    std::filesystem::permissions(file, std::filesystem::perms(0644));
    EXPECT_EQ(runAsOrdinaryUser([&] { return prefixHash(file, 10).value_or("none"); }), digestOfAbc);
}

TEST_F(FileDigestTest, PathLongerThanTheSystemTakesAtOnceIsOpened)
{
    const std::string name(200, 'n');
    auto path = folder.path();
    int parent = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int depth = 0; depth < 30; ++depth) {
        ASSERT_EQ(mkdirat(parent, name.c_str(), 0700), 0);
        const int next = openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        close(parent);
        parent = next;
        path /= name;
    }
    const int file = openat(parent, "file", O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(write(file, "abc", 3), 3);
    close(file);
    close(parent);
    EXPECT_EQ(prefixHash(path / "file", 10), digestOfAbc);
    EXPECT_EQ(prefixHash(path / "missing", 10), std::nullopt);
}

TEST_F(FileDigestTest, AccessTimeOfTheUsersOwnFileStays)
{
    const auto file = make("file", "abc");
    const timespec times[2]{ { 1'000'000'000, 0 }, { 1'500'000'000, 0 } };
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_EQ(prefixHash(file, 10), digestOfAbc);
    struct stat status { };
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_atime, 1'000'000'000);
}

TEST_F(FileDigestTest, CancelIsAnsweredWhileALargePrefixIsRead)
{
    const auto file = make("sparse", "");
    std::filesystem::resize_file(file, std::uintmax_t{ 1 } << 36);
    const Cancellation cancellation;
    std::thread canceller([&] {
        std::this_thread::sleep_for(50ms);
        cancellation.cancel();
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW((void)prefixHash(file, std::int64_t{ 1 } << 36, cancellation), CancellationError);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 5s);
    canceller.join();
}

} // namespace Korvane
