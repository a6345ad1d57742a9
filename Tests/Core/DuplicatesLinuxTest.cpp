// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Core/DuplicatesFixture.h"
#include "Tests/Support/PrivateMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <set>
#include <sys/inotify.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// What only this kernel tells about how duplicates are looked for.
class DuplicatesLinuxTest : public DuplicatesFixture {
protected:
    void mountFolder(const char* name) const
    {
        std::filesystem::create_directories(home() / "shown");
        mountBound(home() / name, home() / "shown");
    }

    /// What is found to be shared beside such mounts: the paths below the home folder in order, each with its kind.
    std::string sharedBeside(const std::function<void()>& mount)
    {
        return runWithPrivateMounts([&] {
            mount();
            const DuplicatesScanner scanner(home(), 100, 1000);
            const auto items = scan(scanner);
            std::set<std::string> lines;
            const auto shared = scanner.sharedStorage(items, {});
            for (const auto& item : items) {
                const auto entry = shared.find(item.id);
                const char* kind = entry == shared.end()      ? " none, "
                    : entry->second == SharedStorage::OneName ? " name, "
                                                              : " file, ";
                lines.insert(item.url.lexically_relative(home()).native() + kind);
            }
            return std::accumulate(lines.begin(), lines.end(), std::string());
        });
    }
};

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
    EXPECT_EQ(sharedBeside([this] { mountFolder("real"); }), "real/a name, shown/a name, ");
}

TEST_F(DuplicatesLinuxTest, FileReachedByTwoMountsIsKnownWhateverOtherNamesItHas)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    make("real/a", small);
    make(".hidden/placeholder", small);
    std::filesystem::create_hard_link(home() / "real/a", home() / ".hidden/other");
    EXPECT_EQ(sharedBeside([this] { mountFolder("real"); }), "real/a name, shown/a name, ");
    std::filesystem::create_hard_link(home() / "real/a", home() / "b");
    EXPECT_EQ(sharedBeside([this] { mountFolder("real"); }), "b file, real/a name, shown/a name, ");
}

TEST_F(DuplicatesLinuxTest, FileThatIsMountedItselfIsKnown)
{
    if (!canMountPrivately())
        GTEST_SKIP() << "this machine lets nobody mount privately";
    make("real/a", small);
    make("shown", small);
    EXPECT_EQ(sharedBeside([this] { mountBound(home() / "real/a", home() / "shown"); }), "real/a name, shown name, ");
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
