// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Files/FileManagerFixture.h"
#include "Tests/Support/OrdinaryUser.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <thread>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<unsigned> refusals{ 0 };

} // namespace

/// Takes the place of the C library's own: who is refused hears of it late, so that others are refused meanwhile.
extern "C" int unlinkat(int folder, const char* name, int flags) noexcept
{
    const auto result = static_cast<int>(syscall(SYS_unlinkat, folder, name, flags));
    const int error = errno;
    if (result != 0 && error == EACCES) {
        ++refusals;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    errno = error;
    return result;
}

namespace Korvane {
namespace {

using RemovalThreadsTest = FileManagerFixture;

TEST_F(RemovalThreadsTest, AReadOnlyFolderIsOpenedUpForAllThreadsThatAreRefused)
{
    constexpr int folders = 40, enoughForThreads = 1000;
    const auto item = home("item");
    for (int folder = 0; folder < folders; ++folder)
        std::filesystem::create_directories(item / std::to_string(folder));
    // The one listed last is emptied first; while it is, other threads begin with the rest.
    std::filesystem::path last;
    for (const auto& folder : std::filesystem::directory_iterator(item))
        last = folder.path();
    for (int file = 0; file < enoughForThreads; ++file)
        writeFile(last / std::to_string(file), "");
    ASSERT_EQ(chmod(item.c_str(), 0555), 0);
    giveToOrdinaryUser(m_environment.home);
    const std::string answer = runAsOrdinaryUser([&] {
        const std::string failure = removing(item);
        return failure + (refusals > 1 ? "several were refused" : "one was refused");
    });
    EXPECT_EQ(answer, "several were refused");
    EXPECT_FALSE(isThere(item));
}

} // namespace
} // namespace Korvane
