// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-large-walk PATH: walks a home folder as a search for large files does, entry by entry in order, and prints the
// allocated bytes of what it met.

#include "Platform/Checked.h"
#include "Platform/DirectoryEnumerator.h"

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    const std::filesystem::path root = arguments[1];
    const std::unordered_set<std::string> never{ "node_modules" };
    Korvane::EnumerationOptions options;
    options.hiddenFiles = Korvane::HiddenFiles::Skipped;
    options.packageDescendants = Korvane::PackageDescendants::Skipped;
    options.namesNeverEntered = &never;
    options.pathsNeverEntered = { root / "Library" };
    Korvane::DirectoryEnumerator walk(root, options);
    std::int64_t total = 0;
    while (const auto* entry = walk.next()) {
        if (entry->type() == Korvane::EntryType::RegularFile)
            total = Korvane::checkedAdd(total, entry->values().totalFileAllocatedSize.value_or(0));
    }
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
