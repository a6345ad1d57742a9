// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FullVolume.h"

#include <cerrno>
#include <sys/statvfs.h>

namespace Korvane {

bool isVolumeFull(const std::filesystem::path& path)
{
    struct statvfs volume { };
    int result = 0;
    while ((result = ::statvfs(path.c_str(), &volume)) != 0 && errno == EINTR)
        continue;
    return result == 0 && volume.f_blocks != 0 && volume.f_bavail == 0;
}

} // namespace Korvane
