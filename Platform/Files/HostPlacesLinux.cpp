// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/FolderListing.h"
#include "Platform/Files/HostPlaces.h"

namespace Korvane {

std::vector<std::filesystem::path> hostCacheDirectories(const Environment& environment)
{
    const std::filesystem::path caches = environment.cacheHome().lexically_normal();
    if (caches == (environment.home / "Library" / "Caches").lexically_normal())
        return {};
    return { environment.cacheHome() };
}

bool isHidden(int, const char* name) noexcept { return *name == '.'; }

} // namespace Korvane
