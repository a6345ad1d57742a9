// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace Korvane {

/// Another program, running from the end of the constructor until the end of its life, when it is killed.
class ChildProgram {
public:
    /// Starts the program that the first argument names by its whole path; throws std::system_error when it does not.
    explicit ChildProgram(const std::vector<std::string>& arguments);
    ~ChildProgram();
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

    pid_t id() const { return m_id; }

private:
    pid_t m_id = -1;
};

} // namespace Korvane
