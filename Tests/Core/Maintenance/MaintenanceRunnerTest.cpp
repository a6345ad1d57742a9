// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Maintenance/MaintenanceRunner.h"

#include "Platform/FileError.h"
#include "Tests/Core/Maintenance/MaintenanceFixture.h"

#include <chrono>
#include <future>

namespace Korvane {

namespace {

using namespace std::chrono_literals;

/// Tasks that are carried out by the system's interpreter of scripts, for which a script of the test stands in.
class MaintenanceRunnerTest : public MaintenanceFixture {
protected:
    void writeInterpreter(const std::string& script) const { writeProgram(program("osascript"), script); }
};

} // namespace

TEST_F(MaintenanceRunnerTest, InterpreterIsGivenExactlyTwoArguments)
{
    writeInterpreter("exit 0");
    const auto& runner = recordRuns();
    for (const auto task : allMaintenanceTasks)
        EXPECT_EQ(failure(task), std::nullopt);
    const auto interpreter = program("osascript").native();
    const std::vector<Call> expected{ { interpreter, "-e",
                                          "do shell script \"/usr/sbin/purge\" with administrator privileges" },
        { interpreter, "-e",
            "do shell script \"/usr/bin/dscacheutil -flushcache; /usr/bin/killall -HUP mDNSResponder\" with "
            "administrator privileges" },
        { interpreter, "-e", "do shell script \"/usr/bin/mdutil -E /\" with administrator privileges" } };
    EXPECT_EQ(runner.calls(), expected);
}

TEST_F(MaintenanceRunnerTest, RealProgramReceivesTheScript)
{
    writeInterpreter("printf '%s|' \"$@\" > '" + (folder() / "seen").native() + "'");
    EXPECT_EQ(failure(MaintenanceTask::ReindexSpotlight), std::nullopt);
    EXPECT_EQ(
        readFile(folder() / "seen"), "-e|do shell script \"/usr/bin/mdutil -E /\" with administrator privileges|");
}

TEST_F(MaintenanceRunnerTest, MessageIsTheTrimmedErrorOutput)
{
    writeInterpreter("printf ' \\t word \\302\\240\\n\\n' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "word");
    writeInterpreter("echo 'execution error: User canceled. (-128)' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "execution error: User canceled. (-128)");
    writeInterpreter("printf 'one\\n two\\n' >&2; exit 255");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "one\n two");
}

TEST_F(MaintenanceRunnerTest, SilentFailureHasAnEmptyMessage)
{
    writeInterpreter("echo said on standard output; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "");
    writeInterpreter("printf ' \\n' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "");
}

TEST_F(MaintenanceRunnerTest, ErrorOutputThatIsNoTextIsAnUnknownError)
{
    writeInterpreter("printf 'bad \\377 byte' >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "Unknown error");
}

TEST_F(MaintenanceRunnerTest, MessageIsKeptUpToItsBoundAndCutBetweenCharacters)
{
    constexpr auto longest = MaintenanceRunner::longestMessage;
    writeInterpreter("head -c " + std::to_string(longest) + " /dev/zero | tr '\\0' x >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), std::string(longest, 'x'));
    writeInterpreter("head -c " + std::to_string(longest - 1)
        + " /dev/zero | tr '\\0' x >&2; printf '\\360\\237\\230\\200' >&2; head -c 5000000 /dev/zero >&2; exit 1");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), std::string(longest - 1, 'x'));
}

TEST_F(MaintenanceRunnerTest, SuccessIsSuccessWhateverWasSaid)
{
    writeInterpreter("echo warning >&2; printf '\\377' >&2; exit 0");
    EXPECT_EQ(failure(MaintenanceTask::FlushDNS), std::nullopt);
}

TEST_F(MaintenanceRunnerTest, InterpreterThatDiesOfASignalHasFailed)
{
    writeInterpreter("echo dying >&2; kill -9 $$");
    EXPECT_EQ(failure(MaintenanceTask::FreeRAM), "dying");
}

TEST_F(MaintenanceRunnerTest, InterpreterThatCannotBeStartedIsThePlatformsError)
{
    writeFile(program("osascript"), "not a program");
    try {
        MaintenanceRunner::run(MaintenanceTask::FreeRAM, host());
        FAIL() << "it was started";
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), program("osascript"));
        EXPECT_EQ(error.code(), std::errc::permission_denied);
    }
}

TEST_F(MaintenanceRunnerTest, TwoTasksRunAtOnceAndEndInEitherOrder)
{
    // Each waits for a file of its own, so that the test says which ends first.
    writeInterpreter("case \"$2\" in *purge*) name=ram;; *) name=index;; esac\ncd '" + folder().path().native()
        + "'\n: > \"$name.begun\"\nwhile [ ! -e \"$name.go\" ]; do sleep 0.01; done\necho \"$name\" >&2\nexit 1");
    for (const bool isRamFirst : { true, false }) {
        for (const char* name : { "ram.begun", "ram.go", "index.begun", "index.go" })
            std::filesystem::remove(folder() / name);
        const auto start = [&](MaintenanceTask task) {
            return std::async(std::launch::async, [this, task] { return failure(task); });
        };
        auto ram = start(MaintenanceTask::FreeRAM);
        auto index = start(MaintenanceTask::ReindexSpotlight);
        EXPECT_TRUE(appears(folder() / "ram.begun") && appears(folder() / "index.begun"));
        auto& first = isRamFirst ? ram : index;
        auto& second = isRamFirst ? index : ram;
        writeFile(folder() / (isRamFirst ? "ram.go" : "index.go"), "");
        EXPECT_EQ(first.get(), isRamFirst ? "ram" : "index");
        EXPECT_EQ(second.wait_for(50ms), std::future_status::timeout);
        writeFile(folder() / (isRamFirst ? "index.go" : "ram.go"), "");
        EXPECT_EQ(second.get(), isRamFirst ? "index" : "ram");
    }
}

TEST_F(MaintenanceRunnerTest, TaskThatHangsIsEndedWhenItIsCancelled)
{
    const auto begun = folder() / "begun";
    writeInterpreter(": > '" + begun.native() + "'; exec sleep 600");
    const Cancellation cancellation;
    auto run = std::async(std::launch::async, [&] {
        EXPECT_THROW(MaintenanceRunner::run(MaintenanceTask::FreeRAM, host(), cancellation), CancellationError);
    });
    EXPECT_TRUE(appears(begun));
    cancellation.cancel();
    EXPECT_EQ(run.wait_for(10s), std::future_status::ready);
}

TEST_F(MaintenanceRunnerTest, NothingIsMissingWhereTheInterpreterIs)
{
    writeInterpreter("exit 0");
    for (const auto task : allMaintenanceTasks)
        EXPECT_EQ(MaintenanceRunner::missingMeans(task, host()), std::nullopt);
}

} // namespace Korvane
