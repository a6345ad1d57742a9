// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Walking/PosixEntries.h"

#include "Platform/Walking/DirectoryReader.h"
#include "Platform/Walking/LongPath.h"

#include <algorithm>
#include <cerrno>
#include <limits>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

int folderOpenFlags() noexcept { return O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK; }

std::error_code lastError() noexcept { return { errno, std::generic_category() }; }

EntryType entryTypeOfMode(unsigned mode) noexcept
{
    if (S_ISREG(mode))
        return EntryType::RegularFile;
    if (S_ISDIR(mode))
        return EntryType::Directory;
    return S_ISLNK(mode) ? EntryType::SymbolicLink : EntryType::Other;
}

std::int64_t nanosecondsSince1970(std::int64_t seconds, std::int64_t nanoseconds) noexcept
{
    constexpr std::int64_t perSecond = 1'000'000'000;
    std::int64_t result = 0;
    if (__builtin_mul_overflow(seconds, perSecond, &result) || __builtin_add_overflow(result, nanoseconds, &result))
        return seconds < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    return result;
}

int DirectoryReader::openPath(const std::string& path, std::error_code& error)
{
    const LongPath folder(path);
    const int descriptor = openat(folder.folder(), folder.relative(), folderOpenFlags());
    if (descriptor < 0)
        error = lastError();
    return descriptor;
}

void DirectoryReader::close(int folder) noexcept { ::close(folder); }

std::size_t DirectoryReader::descriptorsToKeep()
{
    constexpr rlim_t most = 96;
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 8;
    return static_cast<std::size_t>(std::min(limit.rlim_cur / 8, most));
}

} // namespace Korvane
