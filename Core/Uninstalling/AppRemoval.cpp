// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/AppRemoval.h"

namespace Korvane {

std::vector<ScanItem> AppRemoval::items(const InstalledApp& app)
{
    std::vector<ScanItem> items;
    items.reserve(app.leftovers.size() + 1);
    items.emplace_back(app.url, app.name, "Applications", app.sizeInBytes, true);
    items.insert(items.end(), app.leftovers.begin(), app.leftovers.end());
    return items;
}

Cleaner::Result AppRemoval::remove(const InstalledApp& app, const Host& host)
{
    return Cleaner::clean(items(app), true, *host.files);
}

} // namespace Korvane
