// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/EnsureFolder.h"

#include "Platform/FileError.h"

#include <cerrno>
#include <sys/stat.h>

namespace Korvane {

void ensureFolder(const std::filesystem::path& folder)
{
    constexpr mode_t permissions = 0755;
    struct stat status { };
    // Nothing is made behind a link that leads nowhere: mkdir(2) does not follow it.
    int error = ::mkdir(folder.c_str(), permissions) == 0 ? 0 : errno;
    if (error == 0 || (::stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode)))
        return;
    if (error == EEXIST)
        error = ENOTDIR;
    throw FileError(folder, std::error_code(error, std::generic_category()));
}

} // namespace Korvane
