// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/AppRemoval.h"

#include "Core/Scanning/LastPathComponent.h"
#include "Platform/Checked.h"
#include "Platform/FileError.h"

#include <string>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

Cleaner::Failure refusal(const std::filesystem::path& url)
{
    const FileError error(url, std::make_error_code(std::errc::operation_not_permitted));
    return { url, error.localizedDescription() };
}

/// Whether the scan can have found it there: a record made otherwise must not send away whatever it names.
bool isInApplicationFolder(const std::filesystem::path& url, const Host& host)
{
    const auto name = lastPathComponent(url);
    if (!name.ends_with(".app"))
        return false;
    const auto home = host.files->homeDirectoryForCurrentUser();
    return url == host.environment.applicationsDirectory / name || url == home / "Applications" / name;
}

/// Moves each to the Trash; what lies in a Trash already, where cleaning would delete it, is refused.
Cleaner::Result sendAway(const std::vector<ScanItem>& items, const Host& host)
{
    std::vector<ScanItem> movable;
    std::vector<Cleaner::Failure> refusals;
    for (const auto& item : items) {
        if (Cleaner::action(item.url, true, *host.files) == Cleaner::Action::MoveToTrash)
            movable.push_back(item);
        else
            refusals.push_back(refusal(item.url));
    }
    auto result = Cleaner::clean(movable, true, *host.files);
    result.failures.insert(result.failures.end(), refusals.begin(), refusals.end());
    return result;
}

Cleaner::Result removeFlatpak(const InstalledApp& app, const Host& host)
{
    const HostApplication application{ HostApplication::Kind::Flatpak, app.bundleID.value_or(""), app.name, app.url, {},
        {} };
    try {
        host.applications->uninstall(application, {});
    } catch (const FileError& error) {
        Cleaner::Result result;
        result.failures.push_back({ app.url, error.localizedDescription() });
        return result;
    }
    auto result = sendAway(app.leftovers, host);
    result.cleanedBytes = checkedAdd(result.cleanedBytes, app.sizeInBytes);
    result.cleanedCount = checkedAdd(result.cleanedCount, 1);
    return result;
}

} // namespace

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
    switch (app.kind) {
    case InstalledApp::Kind::Flatpak:
        return removeFlatpak(app, host);
    case InstalledApp::Kind::AppImage:
        return sendAway(items(app), host);
    case InstalledApp::Kind::Bundle:
        break;
    }
    if (isInApplicationFolder(app.url, host))
        return sendAway(items(app), host);
    Cleaner::Result result;
    result.failures.push_back(refusal(app.url));
    return result;
}

} // namespace Korvane
