// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-inventory HOME: lists the applications of a folder taken for the home folder, each with what it left behind;
// prints the allocated bytes of all of them.

#include "Core/Uninstalling/AppInventoryScanner.h"
#include "Platform/Checked.h"

#include <cstdio>

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    Korvane::Environment environment;
    environment.home = arguments[1];
    environment.applicationsDirectory = environment.home / "no applications of all users";
    const Korvane::Host host{ environment, Korvane::makeFileManager(environment), nullptr, nullptr,
        Korvane::makeApplicationCatalog(environment, {}), nullptr };
    std::int64_t total = 0;
    for (const auto& app : Korvane::AppInventoryScanner().scanApps(host, [](const Korvane::ScanProgress&) {}))
        total = Korvane::checkedAdd(total, app.totalSize());
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
