// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Sha256.h"
#include "Tests/Platform/DigestFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// Files that change before or while they are read, and a system that is short of something.
class FileDigestFaultsTest : public DigestFixture {
protected:
    /// What becomes of the digest of "abc" when this happens to the file just before it is opened.
    std::string digestWhen(const std::function<void(const std::filesystem::path&)>& happens) const
    {
        const auto file = make("file", "abc");
        const auto pathAt = [&](std::size_t) -> const std::filesystem::path& {
            happens(file);
            return file;
        };
        return FileDigest(1, pathAt, 100).nextPrefixHash().value_or("none");
    }

    /// A file whose path is more than twice as long as what the system takes at once.
    std::filesystem::path makeFarDown() const
    {
        std::filesystem::path chain;
        for (int level = 0; level < 10; ++level)
            chain /= std::string(250, 'd');
        std::filesystem::create_directories(folder / "part");
        writeFile(folder / "part/file", "far down");
        auto place = std::filesystem::path("part/file");
        for (int part = 0; part < 4; ++part) {
            std::filesystem::create_directories(folder / "next" / chain);
            std::filesystem::rename(folder / "part", folder / "next" / chain / "part");
            std::filesystem::rename(folder / "next", folder / "part");
            place = "part" / chain / place;
        }
        return folder / place;
    }

    std::vector<std::filesystem::path> makeMany(std::size_t count) const
    {
        std::vector<std::filesystem::path> files;
        for (std::size_t i = 0; i < count; ++i)
            files.push_back(make("many" + std::to_string(i), std::string(i + 1, 'm')));
        return files;
    }
};

std::string digestOf(const std::string& bytes)
{
    Sha256 sha256;
    sha256.update(bytes.data(), bytes.size());
    return sha256.finalize();
}

/// How many descriptors this process has open.
std::size_t openDescriptors()
{
    std::size_t open = 0;
    for (int descriptor = 0; descriptor < 1024; ++descriptor)
        open += fcntl(descriptor, F_GETFD) >= 0 ? 1 : 0;
    return open;
}

std::string sameOrDifferent(const std::vector<std::string>& left, const std::vector<std::string>& right)
{
    return left == right ? "same" : "different";
}

void limit(int resource, rlim_t most)
{
    const rlimit limits{ most, most };
    if (setrlimit(static_cast<decltype(RLIMIT_NOFILE)>(resource), &limits) != 0)
        throw std::runtime_error("setrlimit");
}

/// Leaves this many descriptors to be had.
void leaveDescriptors(int count)
{
    int descriptor = 0;
    for (; count > 0; ++descriptor)
        count -= fcntl(descriptor, F_GETFD) < 0 ? 1 : 0;
    limit(RLIMIT_NOFILE, static_cast<rlim_t>(descriptor));
}

} // namespace

TEST_F(FileDigestFaultsTest, FileThatChangesBeforeItIsOpenedCountsAsItThenIs)
{
    namespace fs = std::filesystem;
    EXPECT_EQ(digestWhen([](const fs::path& file) { fs::remove(file); }), "none");
    EXPECT_EQ(digestWhen([](const fs::path& file) { fs::resize_file(file, 2); }), digestOf("ab"));
    EXPECT_EQ(digestWhen([](const fs::path& file) { fs::resize_file(file, 0); }), digestOf(""));
    EXPECT_EQ(digestWhen([](const fs::path& file) { writeFile(file, "abcdef"); }), digestOf("abcdef"));
    const auto replaceByLink = [this](const fs::path& file) {
        fs::rename(file, folder / "moved");
        fs::create_symlink(folder / "moved", file);
    };
    EXPECT_EQ(digestWhen(replaceByLink), "none");
    const auto replaceByFolder = [](const fs::path& file) {
        fs::remove(file);
        fs::create_directory(file);
    };
    fs::remove(folder / "file");
    EXPECT_EQ(digestWhen(replaceByFolder), "none");
}

TEST_F(FileDigestFaultsTest, FileThatBecomesUnreadableBeforeItIsOpenedHasNoDigest)
{
    giveToOrdinaryUser(folder.path());
    const auto close
        = [](const std::filesystem::path& file) { std::filesystem::permissions(file, std::filesystem::perms::none); };
    EXPECT_EQ(runAsOrdinaryUser([&] { return digestWhen(close); }), "none");
}

TEST_F(FileDigestFaultsTest, FileThatShrinksAndGrowsWhileItIsReadEndsSomewhere)
{
    constexpr std::uintmax_t size = 40'000'000;
    const auto file = make("changing", "");
    std::atomic<bool> isDone = false;
    std::thread changing([&] {
        while (!isDone) {
            std::filesystem::resize_file(file, size);
            std::filesystem::resize_file(file, size / 5);
        }
    });
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(prefixHash(file, size).value_or("none").size(), 64U);
    isDone = true;
    changing.join();
}

TEST_F(FileDigestFaultsTest, FewFilesAreOpenAtOnce)
{
    const auto files = makeMany(60);
    const auto before = openDescriptors();
    std::size_t most = 0;
    const auto pathAt = [&](std::size_t index) -> const std::filesystem::path& {
        most = std::max(most, openDescriptors());
        return files[index];
    };
    {
        FileDigest digest(files.size(), pathAt, 100);
        for (std::size_t i = 0; i < files.size(); ++i)
            EXPECT_TRUE(digest.nextPrefixHash());
    }
    EXPECT_LE(most, before + 8);
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(FileDigestFaultsTest, OneFreeDescriptorIsEnough)
{
    const auto files = makeMany(30);
    const auto expected = prefixHashes(files, 100);
    giveToOrdinaryUser(folder.path());
    EXPECT_EQ(runAsOrdinaryUser([&] {
        leaveDescriptors(1);
        return sameOrDifferent(prefixHashes(files, 100), expected);
    }),
        "same");
}

TEST_F(FileDigestFaultsTest, FileFarDownWaitsForADescriptorLikeAnyOther)
{
    auto files = makeMany(2);
    files.push_back(makeFarDown());
    const auto expected = prefixHashes(files, 100);
    EXPECT_NE(expected.back(), "none");
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    EXPECT_EQ(runAsOrdinaryUser([&] {
        leaveDescriptors(2);
        return sameOrDifferent(prefixHashes(files, 100), expected);
    }),
        "same");
}

TEST_F(FileDigestFaultsTest, ScanThatIsGivenUpLeavesNothingOpen)
{
    const auto files = makeMany(60);
    const auto before = openDescriptors();
    {
        const auto pathAt = [&](std::size_t index) -> const std::filesystem::path& { return files[index]; };
        FileDigest digest(files.size(), pathAt, 100);
        EXPECT_TRUE(digest.nextPrefixHash());
    }
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(FileDigestFaultsTest, FailureToTellThePathReachesTheCaller)
{
    const auto pathAt = [](std::size_t) -> const std::filesystem::path& { throw std::runtime_error("no path"); };
    EXPECT_THROW((void)FileDigest(1, pathAt, 100).nextPrefixHash(), std::runtime_error);
}

} // namespace Korvane
