// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-run FIGURES OUTPUT COMMAND...: runs the command with its standard output in the file OUTPUT and appends one
// line to FIGURES: wall seconds, user plus system seconds, peak resident kilobytes.

#include <chrono>
#include <cstdio>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

[[noreturn]] void runCommand(const char* output, char** command)
{
    const int descriptor = open(output, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (descriptor < 0 || dup2(descriptor, STDOUT_FILENO) < 0)
        _exit(126);
    execvp(command[0], command);
    std::perror(command[0]);
    _exit(127);
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 4) {
        std::fprintf(stderr, "usage: bench-run FIGURES OUTPUT COMMAND...\n");
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = vfork();
    if (child == 0)
        runCommand(arguments[2], arguments + 3);
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return 1;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    std::FILE* figures = std::fopen(arguments[1], "a");
    if (!figures)
        return 1;
    std::fprintf(figures, "%.6f %.6f %ld\n", wall.count(), secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
        usage.ru_maxrss);
    std::fclose(figures);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
