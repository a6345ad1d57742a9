// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/FileDescriptor.h"

#include <filesystem>
#include <vector>

namespace Korvane {

/// The two ends of a pipe, neither of which any other program inherits.
struct ChildPipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// The numbers of both are above the three that a program is born with. Throws FileError on `program`.
    static ChildPipe open(const std::filesystem::path& program);
};

/// Makes reading and writing there return instead of waiting.
void setNonBlocking(const FileDescriptor& descriptor);

/// The strings as the system call wants them: a terminated array of pointers into them.
template <typename Strings> auto pointersTo(const Strings& strings)
{
    std::vector<char*> pointers;
    pointers.reserve(strings.size() + 1);
    for (const auto& string : strings)
        pointers.push_back(const_cast<char*>(string.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace Korvane
