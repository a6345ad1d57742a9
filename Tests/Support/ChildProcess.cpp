// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/ChildProcess.h"

#include "Platform/FileDescriptor.h"

#include <array>
#include <cerrno>
#include <exception>
#include <string_view>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace Korvane {
namespace {

std::string answerOf(const std::function<std::string()>& work)
{
    try {
        return work();
    } catch (const std::exception& error) {
        return std::string("exception: ") + error.what();
    }
}

[[noreturn]] void answer(int pipe, std::string_view text)
{
    while (!text.empty()) {
        const auto count = ::write(pipe, text.data(), text.size());
        if (count <= 0 && errno != EINTR)
            break;
        if (count > 0)
            text.remove_prefix(static_cast<std::size_t>(count));
    }
    ::_exit(0);
}

std::string readToEnd(int pipe)
{
    std::string text;
    std::array<char, 4096> buffer{};
    while (true) {
        const auto count = ::read(pipe, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

std::string runInChild(const std::function<std::string()>& work)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    const pid_t child = ::fork();
    if (child < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (child == 0)
        answer(writeEnd.get(), answerOf(work));
    writeEnd.close();
    auto text = readToEnd(readEnd.get());
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    if (WIFSIGNALED(status))
        return "died of signal " + std::to_string(WTERMSIG(status));
    if (WIFEXITED(status) && WEXITSTATUS(status) != 0)
        return "ended with status " + std::to_string(WEXITSTATUS(status));
    return text;
}

} // namespace Korvane
