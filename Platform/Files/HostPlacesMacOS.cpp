// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/HostPlaces.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace Korvane {

std::vector<std::filesystem::path> hostCacheDirectories(const Environment&) { return {}; }

bool isHidden(int folder, const char* name) noexcept
{
    struct stat status { };
    return *name == '.'
        || (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && (status.st_flags & UF_HIDDEN) != 0);
}

} // namespace Korvane
