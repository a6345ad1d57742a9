// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Processes/HelperRuns.h"

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <thread>

namespace Korvane {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

} // namespace

ChildProcess helper(std::vector<std::string> arguments, std::string input)
{
    ChildProcess process;
    process.program = KORVANE_HELPER_PROGRAM;
    process.arguments = std::move(arguments);
    process.input = std::move(input);
    return process;
}

ChildResult run(const ChildProcess& process) { return process.run(Cancellation()); }

bool isGone(pid_t process)
{
    for (const auto end = Clock::now() + 5s; Clock::now() < end; std::this_thread::sleep_for(5ms)) {
        const auto status = readFile("/proc/" + std::to_string(process) + "/stat");
        if (::kill(process, 0) != 0 || status.find(") Z") != std::string::npos)
            return true;
    }
    return false;
}

pid_t numberIn(const std::filesystem::path& file)
{
    for (const auto end = Clock::now() + 10s; Clock::now() < end; std::this_thread::sleep_for(2ms))
        if (const auto text = readFile(file); text.ends_with('\n'))
            return std::stoi(text);
    return 0;
}

bool isSleeperGoneAfter(const std::string& manner, void (*end)())
{
    const TemporaryFolder folder;
    const auto file = folder / "sleeper";
    runInChild([&]() -> std::string {
        std::thread([&] { run(helper({ "sleep", manner, file.native() })); }).detach();
        numberIn(file);
        end();
        return {};
    });
    const pid_t sleeper = numberIn(file);
    return sleeper > 0 && isGone(sleeper);
}

} // namespace Korvane
