// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/InstalledApp.h"

#include "Core/HashCombination.h"
#include "Platform/Checked.h"

#include <utility>

namespace Korvane {

InstalledApp::InstalledApp(std::filesystem::path appUrl, std::string appName, std::optional<std::string> appBundleID,
    std::int64_t appSizeInBytes, std::vector<ScanItem> appLeftovers, Kind appKind)
    : id(Uuid::random())
    , url(std::move(appUrl))
    , name(std::move(appName))
    , bundleID(std::move(appBundleID))
    , sizeInBytes(appSizeInBytes)
    , leftovers(std::move(appLeftovers))
    , kind(appKind)
{
}

std::int64_t InstalledApp::totalSize() const
{
    std::int64_t total = sizeInBytes;
    for (const auto& leftover : leftovers)
        total = checkedAdd(total, leftover.sizeInBytes);
    return total;
}

} // namespace Korvane

std::size_t std::hash<Korvane::InstalledApp>::operator()(const Korvane::InstalledApp& app) const noexcept
{
    Korvane::HashCombination combination;
    combination.add(app.id);
    combination.add(app.url.native());
    combination.add(app.name);
    combination.add(app.bundleID);
    combination.add(app.sizeInBytes);
    for (const auto& leftover : app.leftovers)
        combination.add(leftover);
    combination.add(app.kind);
    return combination.value();
}
