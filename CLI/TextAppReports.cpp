// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CLI/AppReports.h"
#include "CLI/Columns.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Core/Uninstalling/AppRemoval.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"

#include <algorithm>

namespace Korvane {

namespace {

std::string itemLine(std::int64_t size, std::string_view text)
{
    return "  " + paddedLeft(formattedBytes(size), sizeWidth) + "  " + std::string(text) + "\n";
}

std::string countOfLeftovers(const InstalledApp& app)
{
    return std::to_string(app.leftovers.size()) + (app.leftovers.size() == 1 ? " leftover item" : " leftover items");
}

} // namespace

std::string appsAsText(const std::vector<InstalledApp>& apps, const RunningApps& running)
{
    if (apps.empty())
        return "No applications found.\n";
    std::size_t width = 0;
    for (const auto& app : apps)
        width = std::max(width, columns(app.name));
    std::string text;
    std::int64_t total = 0;
    for (const auto& app : apps) {
        text += padded(app.name, width) + "  " + paddedLeft(formattedBytes(app.totalSize()), sizeWidth) + "  "
            + (app.bundleID ? displayText(std::string_view(*app.bundleID)) : std::string("no identifier"))
            + (running.contains(app) ? "  (running)" : "") + "\n";
        text += itemLine(app.sizeInBytes, displayText(app.url));
        for (const auto& leftover : app.leftovers)
            text += itemLine(leftover.sizeInBytes, displayText(leftover.url));
        text += "\n";
        total = checkedAdd(total, app.totalSize());
    }
    return text + "Total: " + std::to_string(apps.size()) + (apps.size() == 1 ? " application, " : " applications, ")
        + formattedBytes(total) + "\n";
}

std::string uninstallPlanAsText(const InstalledApp& app)
{
    const bool isFlatpak = app.kind == InstalledApp::Kind::Flatpak;
    std::string text = isFlatpak ? "Would be uninstalled by the Flatpak tool, for good:\n" : "";
    if (isFlatpak)
        text += itemLine(app.sizeInBytes, displayText(app.url));
    const auto items = AppRemoval::items(app);
    const auto first = items.begin() + (isFlatpak ? 1 : 0);
    if (first != items.end())
        text += "Would be moved to the Trash:\n";
    for (auto item = first; item != items.end(); ++item)
        text += itemLine(item->sizeInBytes, displayText(item->url));
    return text + "\n" + app.name + " and " + countOfLeftovers(app) + ", " + formattedBytes(app.totalSize())
        + ". Nothing has been changed; --yes does it.\n";
}

} // namespace Korvane
