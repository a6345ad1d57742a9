// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Support/PrivateMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// What only this kernel tells about how duplicates are looked for.
class DuplicatesLinuxTest : public DuplicatesFixture { };

} // namespace

TEST_F(DuplicatesLinuxTest, OnlyFilesThatShareTheirSizeAreOpened)
{
    make("alone", std::string(300, 'x'));
    make("a", small);
    make("b", small);
    const int watcher = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const int alone = inotify_add_watch(watcher, (home() / "alone").c_str(), IN_OPEN);
    const int shared = inotify_add_watch(watcher, (home() / "a").c_str(), IN_OPEN);
    EXPECT_EQ(scanSmall().size(), 2U);
    alignas(inotify_event) char buffer[4096];
    const auto size = read(watcher, buffer, sizeof buffer);
    close(watcher);
    ASSERT_EQ(size, static_cast<ssize_t>(sizeof(inotify_event)));
    EXPECT_EQ(reinterpret_cast<const inotify_event*>(buffer)->wd, shared);
    EXPECT_NE(shared, alone);
}

TEST_F(DuplicatesLinuxTest, FileReachedByTwoMountsIsASetWhoseRemovalRemovesBoth)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    make("real/a", small);
    std::filesystem::create_directory(home() / "shown");
    const auto answer = runWithPrivateMounts([this] {
        mountBound(home() / "real", home() / "shown");
        const DuplicatesScanner scanner(home(), 100, 1000);
        const auto items = scanSmall();
        std::string text = std::to_string(items.size());
        for (const auto& [id, shared] : scanner.sharedStorage(items, {}))
            text += shared == SharedStorage::OneName ? " name" : " file";
        return text;
    });
    EXPECT_EQ(answer, "2 name name");
}

TEST_F(DuplicatesLinuxTest, OneNameOfAFileReachedByTwoMountsIsTheOriginal)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    make("music/song", small);
    std::filesystem::create_directory(home() / "again");
    EXPECT_THAT(runWithPrivateMounts([&] {
        mountBound(home() / "music", home() / "again");
        std::string found;
        for (const auto& item : scanSmall())
            found
                += item.url.lexically_relative(home()).native() + (item.selectableByDefault ? " copy " : " original ");
        return found;
    }),
        testing::AnyOf("again/song original music/song copy ", "music/song original again/song copy "));
}

} // namespace Korvane
