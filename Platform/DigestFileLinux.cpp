// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DigestFile.h"

#include <cerrno>
#include <climits>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr int readFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int openAt(int folder, const char* name)
{
    // Having been compared with its copies is no use of a file; only its owner may leave the access time alone.
    const int descriptor = openat(folder, name, readFlags | O_NOATIME);
    return descriptor < 0 && errno == EPERM ? openat(folder, name, readFlags) : descriptor;
}

/// Opens a path that is too long for one call, piece by piece, each relative to the one before.
int openLongPath(std::string path)
{
    int folder = AT_FDCWD;
    std::size_t begin = 0;
    while (path.size() - begin >= PATH_MAX) {
        const auto slash = path.rfind('/', begin + PATH_MAX - 2);
        if (slash == std::string::npos || slash <= begin)
            break;
        path[slash] = '\0';
        const int next = openat(folder, path.c_str() + begin, O_PATH | O_DIRECTORY | O_CLOEXEC);
        if (folder != AT_FDCWD)
            close(folder);
        if (next < 0)
            return -1;
        folder = next;
        begin = path.find_first_not_of('/', slash + 1);
        if (begin == std::string::npos)
            begin = path.size();
    }
    const int descriptor = openAt(folder, path.c_str() + begin);
    if (folder != AT_FDCWD)
        close(folder);
    return descriptor;
}

} // namespace

int openForDigest(const std::filesystem::path& file, std::int64_t prefixBytes)
{
    const int descriptor = file.native().size() < PATH_MAX ? openAt(AT_FDCWD, file.c_str()) : openLongPath(file);
    if (descriptor >= 0) {
        // Advice only: the read is the same without it. What is read once need not stay in the cache.
        (void)posix_fadvise(descriptor, 0, prefixBytes, POSIX_FADV_SEQUENTIAL);
        (void)posix_fadvise(descriptor, 0, prefixBytes, POSIX_FADV_NOREUSE);
    }
    return descriptor;
}

} // namespace Korvane
