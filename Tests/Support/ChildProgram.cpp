// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Support/ChildProgram.h"

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

// POSIX leaves its declaration to the program, and macOS has none.
extern char** environ;

namespace Korvane {

ChildProgram::ChildProgram(const std::vector<std::string>& arguments)
{
    std::vector<char*> pointers;
    for (const auto& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    if (const int error = ::posix_spawn(&m_id, pointers[0], nullptr, nullptr, pointers.data(), environ); error != 0)
        throw std::system_error(error, std::generic_category(), arguments[0]);
}

ChildProgram::~ChildProgram()
{
    ::kill(m_id, SIGKILL);
    while (::waitpid(m_id, nullptr, 0) < 0 && errno == EINTR) { }
}

} // namespace Korvane
