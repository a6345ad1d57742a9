// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Platform/Walking/DeepTree.h"

#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

FileDescriptor makeFolder(int parent, const char* name)
{
    if (::mkdirat(parent, name, 0700) != 0)
        throw std::system_error(errno, std::generic_category(), name);
    return FileDescriptor(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

void makeFile(int parent, const char* name)
{
    const FileDescriptor file(::openat(parent, name, O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    if (::write(file.get(), "x", 1) != 1)
        throw std::system_error(errno, std::generic_category(), name);
}

} // namespace

void makeDeepTree(const std::filesystem::path& root, std::size_t depth, SideFolders sideFolders)
{
    FileDescriptor folder(::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (std::size_t level = 0; level < depth; ++level) {
        if (sideFolders == SideFolders::InEach)
            makeFolder(folder.get(), "empty");
        auto next = makeFolder(folder.get(), "d");
        if (sideFolders == SideFolders::InEach || level % 100 == 0)
            makeFile(makeFolder(folder.get(), "side").get(), "file");
        folder = std::move(next);
    }
    makeFile(folder.get(), "bottom");
}

} // namespace Korvane
