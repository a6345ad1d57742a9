// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Preferences/PreferencesFile.h"
#include "Tests/Platform/UserDefaultsFixture.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/Sentinel.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {
namespace {

class UserDefaultsFailures : public UserDefaultsTest { };

class DamagedFile : public UserDefaultsFailures, public testing::WithParamInterface<std::string> { };

TEST_P(DamagedFile, CountsAsEmptyAndIsKeptBesideTheNextOne)
{
    writeFile(file, GetParam());
    const auto defaults = open();
    EXPECT_TRUE(defaults->boolForKey("flag", true));
    EXPECT_EQ(readFile(file), GetParam()) << "reading changes nothing";
    EXPECT_TRUE(defaults->setBool("flag", false));
    EXPECT_FALSE(open()->boolForKey("flag", true));
    EXPECT_EQ(readFile(file.native() + ".damaged"), GetParam());
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, DamagedFile,
    testing::Values("no line of ours\n", std::string("\0\1\xFF\xFE=\n", 6), std::string(4096, '\0'),
        "flag=true\nthen garbage\n", "=value\n", "\xFF=1\n", "[Other]\nflag=true\n",
        "flag=" + std::string(2 << 20, 'x') + "\n"));

TEST_F(UserDefaultsFailures, GoesOnWhenSomethingElseLiesInTheFilesPlace)
{
    std::filesystem::create_directories(file / "inside");
    EXPECT_TRUE(open()->setBool("flag", true));
    EXPECT_TRUE(open()->boolForKey("flag", false));
    EXPECT_TRUE(std::filesystem::is_directory(file.native() + ".damaged/inside"));
    ASSERT_EQ(::unlink(file.c_str()), 0);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    std::filesystem::remove_all(file.native() + ".damaged");
    EXPECT_FALSE(open()->boolForKey("flag", false));
    EXPECT_TRUE(open()->setBool("flag", true));
    EXPECT_TRUE(open()->boolForKey("flag", false));
}

TEST_F(UserDefaultsFailures, WritesThroughALinkThatAPersonPutThere)
{
    const auto elsewhere = folder / "dotfiles/korvane.conf";
    writeFile(elsewhere, "flag=true\n");
    std::filesystem::create_directories(file.parent_path());
    std::filesystem::create_symlink(elsewhere, file);
    EXPECT_TRUE(open()->setBool("flag", false));
    EXPECT_TRUE(std::filesystem::is_symlink(file));
    EXPECT_EQ(readFile(elsewhere), "[General]\nflag=false\n");
}

TEST_F(UserDefaultsFailures, HoldsAValueThatCannotBeWritten)
{
    writeFile(file, "flag=true\n");
    giveToOrdinaryUser(folder.path());
    std::filesystem::permissions(file.parent_path(), std::filesystem::perms(0500));
    const auto answer = runAsOrdinaryUser([&] {
        const auto defaults = open();
        std::string told;
        const auto observation = defaults->observe([&](std::string_view key) { told += key; });
        if (defaults->setBool("flag", false))
            return std::string("said that it was written");
        if (defaults->boolForKey("flag", true) || told != "flag")
            return std::string("does not hold the value");
        ::chmod(file.parent_path().c_str(), 0700);
        if (!defaults->setInteger("count", 4) || open()->boolForKey("flag", true))
            return std::string("the held value was not written with the next one");
        return std::string("good");
    });
    EXPECT_EQ(answer, "good");
}

TEST_F(UserDefaultsFailures, HoldsAValueWithoutAnyHome)
{
    const Sentinel sentinel(folder / "home-is-a-file");
    const auto defaults = makeFileUserDefaults(sentinel.path() / ".config/korvane/korvane.conf");
    EXPECT_FALSE(defaults->setBool("flag", false));
    EXPECT_FALSE(defaults->boolForKey("flag", true));
    EXPECT_EQ(sentinel.difference(), "");
}

TEST_F(UserDefaultsFailures, LeavesTheOldFileWhenTheDiskIsFull)
{
    writeFile(file, "flag=true\n");
    giveToOrdinaryUser(folder.path());
    const auto answer = runAsOrdinaryUser([&] {
        const auto defaults = open();
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit nothingFits{ 4, 4 };
        ::setrlimit(RLIMIT_FSIZE, &nothingFits);
        return std::string(defaults->setBool("flag", false) ? "written" : "not written");
    });
    EXPECT_EQ(answer, "not written");
    EXPECT_EQ(readFile(file), "flag=true\n");
    EXPECT_FALSE(std::filesystem::exists(file.native() + ".new"));
}

TEST_F(UserDefaultsFailures, DoesNotWaitForAProcessThatKeepsTheLock)
{
    writeFile(file, "flag=true\n");
    const int other = ::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    const auto defaults = open();
    EXPECT_FALSE(defaults->setBool("flag", false));
    EXPECT_FALSE(defaults->boolForKey("flag", true));
    ::close(other);
    EXPECT_TRUE(defaults->setBool("flag", false));
    EXPECT_EQ(readFile(file), "[General]\nflag=false\n");
}

TEST_F(UserDefaultsFailures, LosesNothingWhenSeveralProcessesWrite)
{
    std::filesystem::create_directories(file.parent_path());
    constexpr int writers = 3, keys = 10;
    for (int writer = 0; writer < writers; ++writer)
        if (::fork() == 0) {
            const auto defaults = open();
            for (int key = 0; key < keys; ++key)
                while (!defaults->setInteger("key" + std::to_string(writer * keys + key), key)) { }
            ::_exit(0);
        }
    for (int writer = 0; writer < writers; ++writer)
        ASSERT_GT(::wait(nullptr), 0);
    EXPECT_EQ(PreferencesFile(file).read().size(), static_cast<std::size_t>(writers * keys));
}

TEST_F(UserDefaultsFailures, NeverShowsAHalfWrittenFile)
{
    ASSERT_TRUE(open()->setInteger("zzz", 0));
    const pid_t writer = ::fork();
    if (writer == 0) {
        const auto defaults = open();
        for (int round = 0; round < 60; ++round)
            defaults->setInteger("aaa", round);
        ::_exit(0);
    }
    while (::waitpid(writer, nullptr, WNOHANG) == 0)
        ASSERT_TRUE(PreferencesFile(file).read().contains("zzz"));
}

} // namespace
} // namespace Korvane
