// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TreeMeasure.h"

#include "Platform/Checked.h"
#include "Platform/DirectoryEnumerator.h"

#include <sys/stat.h>

namespace Korvane {

std::int64_t totalAllocatedSize(const std::filesystem::path& path, const Cancellation& cancellation)
{
    cancellation.throwIfCancelled();
    struct stat status { };
    struct stat target { };
    if (lstat(path.c_str(), &status) != 0 || stat(path.c_str(), &target) != 0)
        return 0;
    if (!S_ISDIR(status.st_mode))
        return std::int64_t{ status.st_blocks } * 512;
    DirectoryEnumerator walk(path, {}, cancellation);
    std::int64_t total = 0;
    while (const auto* entry = walk.next()) {
        if (entry->type() == EntryType::RegularFile && entry->hasValues())
            total = checkedAdd(total, entry->values().totalFileAllocatedSize.value_or(0));
    }
    return total;
}

} // namespace Korvane
