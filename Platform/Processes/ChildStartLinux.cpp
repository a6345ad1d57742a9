// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ChildStart.h"

#include "Platform/FileError.h"
#include "Platform/Files/Retry.h"
#include "Platform/Processes/ChildPipes.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Korvane {
namespace {

/// What the child needs between fork and exec, all made before, for there nothing may be allocated.
struct Birth {
    const char* program;
    char* const* arguments;
    char* const* environment;
    std::array<int, 3> descriptors; ///< Become standard input, output and error.
    int report; ///< Takes the errno of what went wrong.
    pid_t parent;
};

[[noreturn]] void reportAndExit(int report)
{
    const int error = errno;
    [[maybe_unused]] const auto written = ::write(report, &error, sizeof error);
    ::_exit(127);
}

void closeAllOnExec(int first)
{
    if (::syscall(SYS_close_range, static_cast<unsigned>(first), ~0U, CLOSE_RANGE_CLOEXEC) == 0)
        return;
    // Kernels before 5.11.
    const long count = ::sysconf(_SC_OPEN_MAX);
    for (int descriptor = first; descriptor < count; ++descriptor)
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

void resetSignals()
{
    struct sigaction byDefault { };
    byDefault.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        ::sigaction(signal, &byDefault, nullptr);
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

/// Runs in the child, with all signals blocked: only functions that are safe in a signal handler.
[[noreturn]] void becomeProgram(const Birth& birth)
{
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != birth.parent)
        ::_exit(127);
    for (int number = 0; number < 3; ++number)
        if (::dup2(birth.descriptors[static_cast<std::size_t>(number)], number) < 0)
            reportAndExit(birth.report);
    closeAllOnExec(3);
    resetSignals();
    ::execve(birth.program, birth.arguments, birth.environment);
    reportAndExit(birth.report);
}

/// Forks with all signals blocked, so that no handler of ours runs in the child.
pid_t forkQuietly(const Birth& birth)
{
    sigset_t all, former;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &former);
    const pid_t child = ::fork();
    if (child == 0)
        becomeProgram(birth);
    const int error = errno;
    ::pthread_sigmask(SIG_SETMASK, &former, nullptr);
    errno = error;
    return child;
}

/// The errno that the child reported, 0 when the program has started.
int reportedError(const FileDescriptor& report)
{
    int error = 0;
    const auto count = retryInterrupted([&] { return ::read(report.get(), &error, sizeof error); });
    return count == sizeof error ? error : 0;
}

} // namespace

StartedChild startChild(const ChildStart& start)
{
    const auto arguments = pointersTo(start.arguments);
    const auto environment = pointersTo(start.environment);
    ChildPipes pipes(start.program);
    auto report = ChildPipe::open(start.program);
    const pid_t child = forkQuietly({ start.program.c_str(), arguments.data(), environment.data(),
        { pipes.input.readEnd.get(), pipes.output.writeEnd.get(), pipes.errorOutput.writeEnd.get() },
        report.writeEnd.get(), ::getpid() });
    if (child < 0)
        throw FileError(start.program, std::error_code(errno, std::generic_category()));
    report.writeEnd.close();
    if (const int error = reportedError(report.readEnd); error != 0) {
        retryInterrupted([&] { return ::waitpid(child, nullptr, 0); });
        throw FileError(start.program, std::error_code(error, std::generic_category()));
    }
    return std::move(pipes).givenTo(child);
}

} // namespace Korvane
