// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Processes/ChildPipe.h"

#include "Platform/FileError.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Korvane {
namespace {

constexpr int firstFree = 3;

/// The same end under a number that does not stand in the way of the child's own three.
FileDescriptor raised(int descriptor)
{
    const FileDescriptor original(descriptor);
    return FileDescriptor(::fcntl(original.get(), F_DUPFD_CLOEXEC, firstFree));
}

} // namespace

ChildPipe ChildPipe::open(const std::filesystem::path& program)
{
    std::array<int, 2> ends{};
    // macOS has no pipe2; what it starts meanwhile closes everything of its own accord.
    if (::pipe(ends.data()) != 0)
        throw FileError(program, std::error_code(errno, std::generic_category()));
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ChildPipe pipe{ raised(ends[0]), {} };
    const int error = errno;
    pipe.writeEnd = raised(ends[1]);
    if (!pipe.readEnd || !pipe.writeEnd)
        throw FileError(program, std::error_code(pipe.readEnd ? errno : error, std::generic_category()));
    return pipe;
}

void setNonBlocking(const FileDescriptor& descriptor)
{
    ::fcntl(descriptor.get(), F_SETFL, ::fcntl(descriptor.get(), F_GETFL) | O_NONBLOCK);
}

} // namespace Korvane
