// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Cleaning/Cleaner.h"
#include "Core/Scanning/LargeFilesScanner.h"
#include "Core/Scanning/SystemJunkScanner.h"
#include "Platform/DirectoryEnumerator.h"
#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Where a record of getdents64 tells its length and its name; see getdents(2).
constexpr std::size_t lengthOffset = 16, nameOffset = 19;

/// Lists every name that begins with "twice" once more at the end, where the buffer has room for it.
long listedTwice(char* records, long length, std::size_t room)
{
    auto end = static_cast<std::size_t>(length);
    for (std::size_t place = 0; place < static_cast<std::size_t>(length);) {
        std::uint16_t size = 0;
        std::memcpy(&size, records + place + lengthOffset, sizeof size);
        const bool isMeant = std::strncmp(records + place + nameOffset, "twice", 5) == 0;
        if (isMeant && end + size <= room) {
            std::memcpy(records + end, records + place, size);
            end += size;
        }
        place += size;
    }
    return static_cast<long>(end);
}

using SystemCall = long(long, ...);
std::atomic<SystemCall*> systemCall{};

} // namespace

/// Takes the place of the C library's own, so that folders are listed as POSIX allows for those that change meanwhile.
extern "C" long syscall(long number, ...) noexcept
{
    if (systemCall.load() == nullptr)
        systemCall = reinterpret_cast<SystemCall*>(dlsym(RTLD_NEXT, "syscall"));
    std::va_list arguments;
    va_start(arguments, number);
    long value[6];
    for (long& each : value)
        each = va_arg(arguments, long);
    va_end(arguments);
    const long result = systemCall.load()(number, value[0], value[1], value[2], value[3], value[4], value[5]);
    if (number != SYS_getdents64 || result <= 0)
        return result;
    return listedTwice(reinterpret_cast<char*>(value[1]), result, static_cast<std::size_t>(value[2]));
}

namespace Korvane {

using namespace std::chrono_literals;

namespace {

/// What is made of a name that a folder lists twice.
class RepeatedNamesTest : public DuplicatesFixture {
protected:
    /// How often a walk of the home folder delivers this path.
    int timesWalked(const std::filesystem::path& wanted) const
    {
        int times = 0;
        DirectoryEnumerator walk(home(), {});
        while (const auto* entry = walk.next())
            times += entry->path() == wanted ? 1 : 0;
        return times;
    }
};

} // namespace

TEST_F(RepeatedNamesTest, WalkDeliversTheNameTwice) { EXPECT_EQ(timesWalked(make("twice", small)), 2); }

TEST_F(RepeatedNamesTest, FileIsNoCopyOfItself)
{
    make("twice", small);
    EXPECT_TRUE(scanSmall().empty());
    EXPECT_EQ(reports().back().itemsFound, 0);
}

TEST_F(RepeatedNamesTest, FileOfAFolderThatIsListedTwiceIsNoCopyOfItself)
{
    make("twice/a", small);
    EXPECT_TRUE(scanSmall().empty());
}

TEST_F(RepeatedNamesTest, CleaningDuplicatesLeavesTheOriginal)
{
    make("twice", small, 2h);
    make("other", small, 1h);
    make("twice too", small, 3h);
    const auto items = scanSmall();
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].url, home() / "twice too");
    EXPECT_EQ(items[1].url, home() / "twice");
    EXPECT_EQ(items[2].url, home() / "other");
    EXPECT_EQ(reports().back().bytesFound, 400);
    const Sentinel original(home() / "twice too");
    const auto result = Cleaner::clean({ items.begin() + 1, items.end() }, false, *host().files);
    EXPECT_EQ(result.cleanedCount, 2);
    EXPECT_TRUE(result.failures.empty());
    EXPECT_EQ(original.difference(), "");
}

TEST_F(RepeatedNamesTest, LargeFileIsFoundAndCountedOnce)
{
    make("twice", std::string(8192, 'x'));
    make("twice folder/a", std::string(8192, 'x'));
    const auto items = scan(LargeFilesScanner(8192, 10));
    EXPECT_EQ(items.size(), 2U);
    EXPECT_EQ(reports().back().itemsFound, 2);
    EXPECT_EQ(reports().back().bytesFound, 16384);
}

TEST_F(RepeatedNamesTest, JunkIsFoundOnce)
{
    make("Library/Caches/twice/data", small);
    make("Library/Logs/twice.log", small);
    EXPECT_EQ(scan(SystemJunkScanner()).size(), 2U);
}

TEST_F(RepeatedNamesTest, TrashIsEmptiedWithoutAFailure)
{
    make(".Trash/twice", small);
    const ScanItem trash(home() / ".Trash", std::nullopt, "Trash", 1, true);
    const auto result = Cleaner::clean({ trash }, false, *host().files);
    EXPECT_EQ(result.cleanedCount, 1);
    EXPECT_TRUE(result.failures.empty());
    EXPECT_TRUE(std::filesystem::is_empty(home() / ".Trash"));
}

TEST_F(RepeatedNamesTest, FolderIsRemovedWhole)
{
    make("folder/twice/a", small);
    make("folder/twice b", small);
    host().files->removeItem(home() / "folder");
    EXPECT_FALSE(std::filesystem::exists(home() / "folder"));
}

} // namespace Korvane
