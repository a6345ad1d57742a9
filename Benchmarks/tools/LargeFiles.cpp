// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-large-files HOME BYTES: the scan for large files itself, over a folder taken for the home folder; prints the
// allocated bytes of all files that occupy at least so many.

#include "Core/Scanning/LargeFilesScanner.h"
#include "Platform/Checked.h"
#include "Platform/FileManager.h"
#include "Platform/Host.h"

#include <cstdio>
#include <cstdlib>
#include <limits>

int main(int count, char** arguments)
{
    if (count != 3)
        return 2;
    Korvane::Environment environment;
    environment.home = arguments[1];
    const Korvane::Host host{ environment, Korvane::makeFileManager(environment), nullptr, nullptr, nullptr, nullptr };
    const Korvane::LargeFilesScanner scanner(std::atoll(arguments[2]), std::numeric_limits<std::int64_t>::max());
    std::int64_t total = 0;
    for (const auto& item : scanner.scan(host, [](const Korvane::ScanProgress&) {}, {}))
        total = Korvane::checkedAdd(total, item.sizeInBytes);
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
