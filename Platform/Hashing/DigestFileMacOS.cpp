// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Hashing/DigestFile.h"

#include "Platform/Hashing/OpenForDigest.h"
#include "Platform/Walking/LongPath.h"

#include <algorithm>
#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

constexpr int readFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

/// Whether the content of the file lies in a cloud and would be brought down by reading it (sys/stat.h).
bool isPlaceholder(const struct stat& status) { return (status.st_flags & SF_DATALESS) != 0; }

} // namespace

FileDescriptor openForDigest(const std::filesystem::path& file)
{
    const LongPath path(file.native());
    struct stat status { };
    if (!path.isReachable() || fstatat(path.folder(), path.relative(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    if (isPlaceholder(status)) {
        errno = EDEADLK; // What reading it answers where nothing may be brought down.
        return {};
    }
    FileDescriptor descriptor(openat(path.folder(), path.relative(), readFlags));
    // What is read once need not stay in the cache (fcntl(2)); advice only, the read is the same without it.
    if (descriptor)
        (void)fcntl(descriptor.get(), F_NOCACHE, 1);
    return descriptor;
}

// The system does not tell reliably what it holds, so nothing is given back by hand: that is left to F_NOCACHE.
// Dropping pages by msync(2) with MS_INVALIDATE is no way, as it might take unsaved ones of another program with it.
std::vector<FileRange> DigestFile::tellAhead(FileRange range, const Cancellation&) const
{
    struct radvisory advice { };
    advice.ra_offset = range.offset;
    advice.ra_count
        = static_cast<int>(std::clamp<std::int64_t>(std::min(range.count, m_size - range.offset), 0, INT_MAX));
    if (advice.ra_count > 0)
        (void)fcntl(m_descriptor.get(), F_RDADVISE, &advice);
    return {};
}

void DigestFile::giveBack(const std::vector<FileRange>&) const noexcept { }

std::int64_t DigestFile::readFromMemory(unsigned char*, FileRange) const { return 0; }

} // namespace Korvane
