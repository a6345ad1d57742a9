// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/DigestFile.h"

#include <algorithm>
#include <climits>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

/// Whether the content of the file lies in a cloud and would be brought down by reading it (sys/stat.h).
bool isPlaceholder(const struct stat& status) { return (status.st_flags & SF_DATALESS) != 0; }

} // namespace

int openForDigest(const std::filesystem::path& file, std::int64_t prefixBytes)
{
    // A file may become a placeholder between two calls: the system is asked to refuse rather than to fetch it
    // (setiopolicy_np(3)).
    (void)setiopolicy_np(
        IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES, IOPOL_SCOPE_THREAD, IOPOL_MATERIALIZE_DATALESS_FILES_OFF);
    struct stat status { };
    if (lstat(file.c_str(), &status) != 0 || isPlaceholder(status))
        return -1;
    const int descriptor = open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor >= 0) {
        // Advice only (fcntl(2)): read ahead the prefix, and keep what is read once out of the unified cache.
        struct radvisory advice { };
        advice.ra_offset = 0;
        advice.ra_count = static_cast<int>(
            std::clamp<std::int64_t>(prefixBytes, 0, std::min<std::int64_t>(status.st_size, INT_MAX)));
        (void)fcntl(descriptor, F_RDADVISE, &advice);
        (void)fcntl(descriptor, F_NOCACHE, 1);
    }
    return descriptor;
}

} // namespace Korvane
