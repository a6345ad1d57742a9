// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/ChildProcess.h"

#include "Platform/FileError.h"
#include "Tests/Platform/Processes/HelperRuns.h"
#include "Tests/Support/OrdinaryUser.h"
#include "Tests/Support/TemporaryFolder.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <future>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::string errorOfStarting(const std::filesystem::path& program)
{
    ChildProcess process;
    process.program = program;
    try {
        run(process);
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), program);
        EXPECT_FALSE(error.localizedDescription().empty());
        return std::to_string(error.code().value());
    }
    return "started";
}

std::size_t countDescriptors()
{
    std::size_t count = 0;
    for (int descriptor = 0; descriptor < 1024; ++descriptor)
        count += ::fcntl(descriptor, F_GETFD) != -1 ? 1 : 0;
    return count;
}

bool hasNoChild() { return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD; }

class ChildProcessTest : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_EQ(countDescriptors(), m_descriptors);
        EXPECT_TRUE(hasNoChild());
    }

private:
    std::size_t m_descriptors = countDescriptors();
};

TEST_F(ChildProcessTest, TellsTheStatusFromTheSignal)
{
    const auto three = run(helper({ "exit", "3" }));
    EXPECT_EQ(three.exitStatus, 3);
    EXPECT_EQ(three.signal, std::nullopt);
    EXPECT_FALSE(three.hasSucceeded());
    const auto killed = run(helper({ "die", std::to_string(SIGKILL) }));
    EXPECT_EQ(killed.exitStatus, std::nullopt);
    EXPECT_EQ(killed.signal, SIGKILL);
    EXPECT_FALSE(killed.hasSucceeded());
    EXPECT_TRUE(run(helper({ "exit", "0" })).hasSucceeded());
}

TEST_F(ChildProcessTest, GivesArgumentsAndVariablesAsTheyStand)
{
    auto process = helper({ "arguments", "a b", "$HOME", "", "*", "\"'\\\n;" });
    EXPECT_EQ(run(process).output.text, "[a b][$HOME][][*][\"'\\\n;]none");
    process.variables = { { "KORVANE_TEST_VARIABLE", "one=two" } };
    EXPECT_EQ(run(process).output.text, "[a b][$HOME][][*][\"'\\\n;]one=two");
}

TEST_F(ChildProcessTest, TalksBothWaysWithoutEitherSideWaiting)
{
    constexpr std::size_t large = 50'000'000;
    for (const std::string order : { "first", "meanwhile", "last" }) {
        auto process = helper({ "flood", std::to_string(large), order }, std::string(large, 'i'));
        process.outputLimit = 2 * large;
        // A program that reads its input last needs no more than that its outputs are read before.
        const auto result = run(process);
        EXPECT_TRUE(result.hasSucceeded()) << order;
        EXPECT_EQ(result.output.text.size(), large + 8) << order;
        EXPECT_TRUE(result.output.text.ends_with("o50000000")) << order;
        EXPECT_EQ(result.errorOutput.text, std::string(large, 'e')) << order;
        EXPECT_FALSE(result.output.isTruncated || result.errorOutput.isTruncated) << order;
    }
}

TEST_F(ChildProcessTest, KeepsBytesAsTheyAre)
{
    std::string bytes;
    for (int value = 0; value < 1024; ++value)
        bytes += static_cast<char>(value);
    EXPECT_EQ(run(helper({ "echo" }, bytes)).output.text, bytes);
}

TEST_F(ChildProcessTest, KeepsNoMoreThanItsLimitOfEachOutput)
{
    auto process = helper({ "flood", "5000000", "last" });
    process.outputLimit = 100'000;
    const auto result = run(process);
    EXPECT_TRUE(result.hasSucceeded());
    EXPECT_EQ(result.output.text, std::string(100'000, 'o'));
    EXPECT_EQ(result.errorOutput.text, std::string(100'000, 'e'));
    EXPECT_TRUE(result.output.isTruncated);
    EXPECT_TRUE(result.errorOutput.isTruncated);
    process.arguments[1] = "100000";
    EXPECT_FALSE(run(process).errorOutput.isTruncated);
}

TEST_F(ChildProcessTest, ComesToNoHarmWhenThePipesAreClosedEarly)
{
    EXPECT_EQ(run(helper({ "close-early" }, std::string(10'000'000, 'i'))).exitStatus, 7);
    EXPECT_EQ(run(helper({ "exit", "4" }, std::string(10'000'000, 'i'))).exitStatus, 4);
    sigset_t pending;
    ::sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
}

TEST_F(ChildProcessTest, WaitsNotForAProcessThatWasLeftBehindAndEndsIt)
{
    const auto begin = Clock::now();
    const auto result = run(helper({ "leave-sleeper" }));
    EXPECT_LT(Clock::now() - begin, 3s);
    EXPECT_TRUE(result.hasSucceeded());
    ASSERT_FALSE(result.output.text.empty());
    EXPECT_TRUE(isGone(std::stoi(result.output.text)));
}

TEST_F(ChildProcessTest, SaysWhyAProgramDoesNotStart)
{
    const TemporaryFolder folder;
    writeFile(folder / "plain", "#!/bin/sh\nexit 0\n");
    writeFile(folder / "noise", "\x01\x02 neither a program nor a script");
    std::filesystem::permissions(folder / "noise", std::filesystem::perms::all);
    EXPECT_EQ(errorOfStarting(folder / "missing"), std::to_string(ENOENT));
    EXPECT_EQ(errorOfStarting(folder / "plain"), std::to_string(EACCES));
    EXPECT_EQ(errorOfStarting(folder / "noise"), std::to_string(ENOEXEC));
    EXPECT_EQ(errorOfStarting(folder.path()), std::to_string(EACCES));
    EXPECT_EQ(errorOfStarting("sh"), std::to_string(EINVAL));
    EXPECT_EQ(errorOfStarting(""), std::to_string(EINVAL));
    EXPECT_THROW(run(helper({ std::string("a\0b", 3) })), FileError);
}

TEST_F(ChildProcessTest, InheritsNothingAndNoSignals)
{
    const int open = ::open("/dev/null", O_RDONLY);
    const int copy = ::fcntl(open, F_DUPFD, 500);
    sigset_t all, former;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &former);
    const auto formerHandler = std::signal(SIGUSR1, SIG_IGN);
    const auto descriptors = run(helper({ "descriptors" })).output.text;
    const auto signals = run(helper({ "signals" })).output.text;
    std::signal(SIGUSR1, formerHandler);
    ::pthread_sigmask(SIG_SETMASK, &former, nullptr);
    ::close(open);
    ::close(copy);
    EXPECT_EQ(descriptors, "0 1 2 ");
    EXPECT_EQ(signals, "leader");
}

TEST_F(ChildProcessTest, EndsWhatRunsWhenItIsCancelled)
{
    const TemporaryFolder folder;
    for (const std::string manner : { "willing", "stubborn" }) {
        const Cancellation cancellation;
        const auto file = folder / manner;
        auto outcome = std::async(std::launch::async,
            [&, process = helper({ "sleep", manner, file.native() })] { process.run(cancellation); });
        const pid_t child = numberIn(file);
        ASSERT_GT(child, 0);
        const auto begin = Clock::now();
        cancellation.cancel();
        EXPECT_THROW(outcome.get(), CancellationError) << manner;
        EXPECT_LT(Clock::now() - begin, manner == "willing" ? 1500ms : 5s);
        EXPECT_EQ(::kill(child, 0), -1) << manner;
    }
}

TEST_F(ChildProcessTest, EndsWhatRunsForTooLong)
{
    const TemporaryFolder folder;
    for (const std::string manner : { "willing", "stubborn" }) {
        const auto file = folder / manner;
        auto process = helper({ "sleep", manner, file.native() });
        process.timeLimit = 1s;
        const auto begin = Clock::now();
        try {
            run(process);
            ADD_FAILURE() << manner;
        } catch (const FileError& error) {
            EXPECT_EQ(error.code(), std::errc::timed_out) << manner;
            EXPECT_EQ(error.path(), process.program);
        }
        EXPECT_GE(Clock::now() - begin, 1s);
        EXPECT_LT(Clock::now() - begin, manner == "willing" ? 2500ms : 6s);
        EXPECT_EQ(::kill(numberIn(file), 0), -1) << manner;
    }
    auto quick = helper({ "exit", "3" });
    quick.timeLimit = 60s;
    EXPECT_EQ(run(quick).exitStatus, 3);
}

/// What comes of cancelling, or of giving up for the time, a program that this process may not kill.
std::string outcomeOfOutliving(
    const std::filesystem::path& program, const std::filesystem::path& folder, bool isCancelled)
{
    auto process = helper({ "outlive", folder / "begun", folder / "end" });
    process.program = program;
    const auto descriptors = countDescriptors();
    const auto begin = Clock::now();
    const Cancellation cancellation;
    if (!isCancelled)
        process.timeLimit = 1s;
    std::string outcome = "it ended";
    std::thread run([&] {
        try {
            process.run(cancellation);
        } catch (const CancellationError&) {
            outcome = "cancelled";
        } catch (const FileError& error) {
            outcome = error.code() == std::errc::timed_out ? "out of time" : error.what();
        }
    });
    const pid_t child = numberIn(folder / "begun");
    if (isCancelled)
        cancellation.cancel();
    run.join();
    outcome += Clock::now() - begin < 15s ? ", soon" : ", late";
    outcome += ::kill(child, 0) != 0 && errno == EPERM ? ", alive" : ", ended";
    outcome += countDescriptors() == descriptors ? "" : ", descriptors left";
    writeFile(folder / "end", "");
    siginfo_t information{};
    ::waitid(P_PID, static_cast<id_t>(child), &information, WEXITED | WNOWAIT);
    // Whatever is run next buries it.
    Korvane::run(helper({ "exit", "0" }));
    return outcome + (hasNoChild() ? ", buried" : ", a zombie");
}

TEST_F(ChildProcessTest, GivesUpWhatItCannotKillAndBuriesItLater)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root's right to make a program that an ordinary user cannot kill";
    for (const bool isCancelled : { true, false }) {
        const TemporaryFolder folder;
        const auto program = folder / "program";
        std::filesystem::copy_file(KORVANE_HELPER_PROGRAM, program);
        giveToOrdinaryUser(folder.path());
        ASSERT_EQ(::chown(program.c_str(), 0, 0), 0);
        ASSERT_EQ(::chmod(program.c_str(), 04755), 0);
        EXPECT_EQ(runAsOrdinaryUser([&] { return outcomeOfOutliving(program, folder.path(), isCancelled); }),
            std::string(isCancelled ? "cancelled" : "out of time") + ", soon, alive, buried");
    }
}

TEST_F(ChildProcessTest, StartsNothingThatWasCancelledBefore)
{
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_THROW(helper({ "exit", "0" }).run(cancellation), CancellationError);
}

TEST_F(ChildProcessTest, LeavesNoOrphanWhenThisProgramExits)
{
    EXPECT_TRUE(isSleeperGoneAfter("willing", [] { std::exit(0); }));
    EXPECT_TRUE(isSleeperGoneAfter("stubborn", [] { std::exit(0); }));
}

TEST_F(ChildProcessTest, RunsManyAtATime)
{
    std::vector<std::future<ChildResult>> results;
    for (int number = 0; number < 16; ++number)
        results.push_back(std::async(std::launch::async,
            [number] { return run(helper({ "echo" }, std::string(1'000'000, static_cast<char>('a' + number)))); }));
    for (std::size_t number = 0; number < results.size(); ++number)
        EXPECT_EQ(results[number].get().output.text, std::string(1'000'000, static_cast<char>('a' + number)));
}

} // namespace
} // namespace Korvane
