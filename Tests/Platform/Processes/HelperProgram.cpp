// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A program for the tests of running programs: does what its first argument says, with the rest of them.

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

void writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const auto count = ::write(descriptor, text.data(), text.size());
        if (count <= 0)
            return;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::size_t readToEnd()
{
    std::array<char, 65536> buffer{};
    std::size_t total = 0;
    for (ssize_t count = 0; (count = ::read(0, buffer.data(), buffer.size())) > 0;)
        total += static_cast<std::size_t>(count);
    return total;
}

/// Writes so many bytes to each output at once, reads its input first, last or meanwhile, and says how much it was.
int flood(const Arguments& arguments)
{
    const std::size_t length = std::stoul(arguments.at(0));
    std::size_t taken = 0;
    if (arguments.at(1) == "first")
        taken = readToEnd();
    std::thread output([&] { writeAll(1, std::string(length, 'o')); });
    std::thread errorOutput([&] { writeAll(2, std::string(length, 'e')); });
    if (arguments.at(1) == "meanwhile")
        taken = readToEnd();
    output.join();
    errorOutput.join();
    if (arguments.at(1) == "last")
        taken = readToEnd();
    writeAll(1, std::to_string(taken));
    return 0;
}

int echo(const Arguments&)
{
    std::array<char, 65536> buffer{};
    for (ssize_t count = 0; (count = ::read(0, buffer.data(), buffer.size())) > 0;)
        writeAll(1, { buffer.data(), static_cast<std::size_t>(count) });
    return 0;
}

int closeEarly(const Arguments&)
{
    for (int descriptor = 0; descriptor < 3; ++descriptor)
        ::close(descriptor);
    ::usleep(200'000);
    return 7;
}

[[noreturn]] void waitForEver()
{
    while (true)
        ::pause();
}

/// Leaves a process behind that holds the outputs open, whose id is told.
int leaveSleeper(const Arguments&)
{
    const pid_t sleeper = ::fork();
    if (sleeper == 0)
        waitForEver();
    std::cout << sleeper << std::flush;
    return 0;
}

int sleepForEver(const Arguments& arguments)
{
    if (!arguments.empty() && arguments[0] == "stubborn")
        std::signal(SIGTERM, SIG_IGN);
    if (arguments.size() > 1) {
        const int file = ::open(arguments[1].c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        writeAll(file, std::to_string(::getpid()) + "\n");
    }
    waitForEver();
}

/// Becomes the administrator's, when its file's mode allows that, and lives until a file is there, for a minute at most.
int outlive(const Arguments& arguments)
{
    if (::setuid(0) != 0)
        return 1;
    const int file = ::open(arguments.at(0).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    writeAll(file, std::to_string(::getpid()) + "\n");
    for (int round = 0; round < 12'000 && ::access(arguments.at(1).c_str(), F_OK) != 0; ++round)
        ::usleep(5000);
    return 0;
}

int tellDescriptors(const Arguments&)
{
    for (int descriptor = 0; descriptor < 1024; ++descriptor)
        if (::fcntl(descriptor, F_GETFD) != -1)
            std::cout << descriptor << ' ';
    return 0;
}

/// The signals that are blocked or ignored, and whether the process leads its group.
int tellSignals(const Arguments&)
{
    sigset_t blocked;
    ::sigprocmask(SIG_SETMASK, nullptr, &blocked);
    for (const int signal : { SIGPIPE, SIGTERM, SIGINT, SIGHUP, SIGCHLD, SIGUSR1 }) {
        struct sigaction action { };
        ::sigaction(signal, nullptr, &action);
        if (sigismember(&blocked, signal) == 1 || action.sa_handler == SIG_IGN)
            std::cout << signal << ' ';
    }
    std::cout << (::getpgrp() == ::getpid() ? "leader" : "follower");
    return 0;
}

int tellArguments(const Arguments& arguments)
{
    for (const auto& argument : arguments)
        std::cout << '[' << argument << ']';
    const char* variable = std::getenv("KORVANE_TEST_VARIABLE");
    std::cout << (variable != nullptr ? variable : "none");
    return 0;
}

} // namespace

int main(int count, char** values)
{
    Arguments arguments(values + 1, values + count);
    const std::map<std::string, std::function<int(const Arguments&)>> deeds{ { "flood", flood }, { "echo", echo },
        { "close-early", closeEarly }, { "leave-sleeper", leaveSleeper }, { "sleep", sleepForEver },
        { "outlive", outlive }, { "descriptors", tellDescriptors }, { "signals", tellSignals },
        { "arguments", tellArguments }, { "exit", [](const auto& rest) { return std::stoi(rest.at(0)); } },
        { "die", [](const auto& rest) { return ::raise(std::stoi(rest.at(0))); } } };
    const auto deed = arguments.empty() ? deeds.end() : deeds.find(arguments[0]);
    if (deed == deeds.end())
        return 125;
    arguments.erase(arguments.begin());
    return deed->second(arguments);
}
