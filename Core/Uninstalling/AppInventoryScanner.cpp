// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/AppInventoryScanner.h"

#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/FindingsReport.h"
#include "Core/Scanning/LastPathComponent.h"
#include "Core/Uninstalling/LeftoverPlaces.h"
#include "Core/VisibleChildren.h"
#include "Platform/Bundle.h"
#include "Platform/DisplayText.h"
#include "Platform/MeasureAhead.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

/// The file name of a bundle without its extension; nothing for what is no application.
std::optional<std::string> stemOfApplication(const std::filesystem::path& url)
{
    constexpr std::string_view extension = ".app";
    std::string name = lastPathComponent(url);
    if (name.size() <= extension.size() || !name.ends_with(extension))
        return std::nullopt;
    name.resize(name.size() - extension.size());
    return name;
}

std::optional<std::string> bundleIdentifier(const std::filesystem::path& url)
{
    const auto bundle = Bundle::open(url);
    return bundle ? bundle->bundleIdentifier() : std::nullopt;
}

/// Whether the path leads to the bundle, which is free of links; the bundle is empty when there is none.
bool leadsTo(const std::filesystem::path& bundle, const std::filesystem::path& path)
{
    std::error_code error;
    return !bundle.empty() && (path == bundle || std::filesystem::canonical(path, error) == bundle);
}

InstalledApp::Kind kindOf(HostApplication::Kind kind)
{
    switch (kind) {
    case HostApplication::Kind::AppImage:
        return InstalledApp::Kind::AppImage;
    case HostApplication::Kind::Flatpak:
        return InstalledApp::Kind::Flatpak;
    }
    return InstalledApp::Kind::AppImage;
}

} // namespace

/// One scan: what has been found so far, and how it is reported.
class AppInventoryScanner::Scan {
public:
    Scan(const Host& host, const ProgressHandler& progress, const Cancellation& cancellation)
        : m_host(host)
        , m_cancellation(cancellation)
        , m_report(progress)
    {
    }

    std::vector<InstalledApp> run()
    {
        const auto home = m_host.files->homeDirectoryForCurrentUser();
        for (const auto& folder : { m_host.environment.applicationsDirectory, home / "Applications" }) {
            m_cancellation.throwIfCancelled();
            addBundles(folder);
        }
        for (const auto& application : m_host.applications->additionalApplications(m_cancellation)) {
            m_cancellation.throwIfCancelled();
            addHostApplication(application);
        }
        std::stable_sort(m_apps.begin(), m_apps.end(),
            [](const InstalledApp& left, const InstalledApp& right) { return left.totalSize() > right.totalSize(); });
        return std::move(m_apps);
    }

private:
    void addBundles(const std::filesystem::path& folder)
    {
        const auto own = m_host.applications->mainBundle();
        auto bundles = visibleChildren(folder, *m_host.files);
        const auto isOther = [&](const auto& child) { return !stemOfApplication(child) || leadsTo(own, child); };
        bundles.erase(std::remove_if(bundles.begin(), bundles.end(), isOther), bundles.end());
        MeasureAhead sizes(bundles, m_cancellation);
        for (const auto& bundle : bundles) {
            m_cancellation.throwIfCancelled();
            addBundle(bundle, sizes);
        }
    }

    void addBundle(const std::filesystem::path& url, MeasureAhead& sizes)
    {
        m_report.tell(url);
        const auto size = sizes.next();
        auto identifier = bundleIdentifier(url);
        std::vector<ScanItem> leftovers;
        if (identifier) {
            for (const auto& candidate : leftoverCandidates(*identifier, *m_host.files))
                addIfNotEmpty(leftovers, { candidate, leftoverCategory(candidate) });
        }
        add(InstalledApp(url, displayText(*stemOfApplication(url)), std::move(identifier), size, std::move(leftovers)));
    }

    void addHostApplication(const HostApplication& application)
    {
        m_report.tell(application.path);
        const auto size = FileSizeCalculator::totalSize(application.path, m_cancellation);
        std::vector<ScanItem> leftovers;
        for (const auto& entry : application.desktopEntries)
            addPart(leftovers, { entry, "Desktop Entry" });
        for (const auto& icon : application.icons)
            addPart(leftovers, { icon, "Icons" });
        const auto home = m_host.files->homeDirectoryForCurrentUser();
        if (application.kind == HostApplication::Kind::Flatpak && isFileName(application.identifier))
            addIfNotEmpty(leftovers, { home / ".var/app" / application.identifier, "Containers" });
        for (const auto& place : desktopLeftoverPlaces(application.identifier, m_host.environment, *m_host.files))
            addIfNotEmpty(leftovers, place);
        add(InstalledApp(application.path, displayText(application.name), application.identifier, size,
            std::move(leftovers), kindOf(application.kind)));
    }

    void addIfNotEmpty(std::vector<ScanItem>& leftovers, const LeftoverPlace& place) const
    {
        m_cancellation.throwIfCancelled();
        const auto size = FileSizeCalculator::totalSize(place.url, m_cancellation);
        if (size > 0)
            leftovers.emplace_back(place.url, std::nullopt, place.category, size, true);
    }

    /// What belongs to the application itself goes with it, even where the file system keeps it without a block.
    void addPart(std::vector<ScanItem>& leftovers, const LeftoverPlace& place) const
    {
        const auto size = FileSizeCalculator::totalSize(place.url, m_cancellation);
        leftovers.emplace_back(place.url, std::nullopt, place.category, size, true);
    }

    void add(InstalledApp app)
    {
        m_report.count(app.totalSize());
        m_report.tell(app.url);
        m_apps.push_back(std::move(app));
    }

    const Host& m_host;
    const Cancellation& m_cancellation;
    FindingsReport m_report;
    std::vector<InstalledApp> m_apps;
};

std::vector<InstalledApp> AppInventoryScanner::scanApps(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    return Scan(host, progress, cancellation).run();
}

std::vector<std::filesystem::path> AppInventoryScanner::leftoverCandidates(
    const std::string& bundleID, const FileManager& files)
{
    if (!isFileName(bundleID))
        return {};
    const auto library = files.homeDirectoryForCurrentUser() / "Library";
    std::vector<std::filesystem::path> candidates{
        library / "Application Support" / bundleID,
        library / "Caches" / bundleID,
        library / "Preferences" / (bundleID + ".plist"),
        library / "Saved Application State" / (bundleID + ".savedState"),
        library / "HTTPStorages" / bundleID,
        library / "WebKit" / bundleID,
        library / "Containers" / bundleID,
    };
    const auto isMissing = [&](const std::filesystem::path& candidate) { return !files.fileExists(candidate); };
    candidates.erase(std::remove_if(candidates.begin(), candidates.end(), isMissing), candidates.end());
    return candidates;
}

std::string AppInventoryScanner::leftoverCategory(const std::filesystem::path& url)
{
    const auto contains = [&](std::string_view part) { return url.native().find(part) != std::string::npos; };
    for (const char* category : { "Caches", "Preferences", "Application Support", "Containers" }) {
        if (contains("/" + std::string(category) + "/"))
            return category;
    }
    return "Other Leftovers";
}

} // namespace Korvane
