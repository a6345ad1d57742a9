// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// What the system call that starts a program takes.
struct ChildStart {
    std::filesystem::path program;
    std::vector<std::string> arguments; ///< The program's name first.
    std::vector<std::string> environment; ///< "NAME=value".
};

/// A program that has been started, and our ends of its pipes, none of which waits.
struct StartedChild {
    int id = -1; ///< Of the process, and of the process group that it leads.
    FileDescriptor input;
    FileDescriptor output;
    FileDescriptor errorOutput;
};

/// Starts it as ChildProcess says; throws FileError when the system does not. Any thread: on Linux the one whose end
/// the program does not outlive.
StartedChild startChild(const ChildStart& start);

} // namespace Korvane
