// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileIdentity.h"

#include "Platform/Walking/LongPath.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace Korvane {

std::optional<FileIdentity> identityOfItem(const std::filesystem::path& path)
{
    const LongPath place(path.native());
    struct stat status { };
    if (::fstatat(place.folder(), place.relative(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return FileIdentity{ static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
        static_cast<std::uint64_t>(status.st_nlink) };
}

} // namespace Korvane
