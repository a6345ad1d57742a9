// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Uninstalling/AppInventoryScanner.h"
#include "Core/Uninstalling/AppRemoval.h"
#include "Tests/Core/ForwardingFileManager.h"
#include "Tests/Core/ScanFixture.h"
#include "Tests/Support/TestBundles.h"
#include "Tests/Support/TestCatalog.h"

#include <algorithm>

namespace Korvane {

/// Two application folders, a Library and a catalog of a test's own, and scans of them.
class InventoryFixture : public ScanFixture {
protected:
    InventoryFixture() { host().applications = m_catalog; }

    TestCatalog& catalog() { return *m_catalog; }
    std::filesystem::path shared(const std::string& name) const { return folder() / "Applications" / name; }
    std::filesystem::path own(const std::string& name) const { return home() / "Applications" / name; }
    std::filesystem::path library(const std::string& path) const { return home() / "Library" / path; }

    std::vector<InstalledApp> scanApps(const Cancellation& cancellation = {})
    {
        m_appReports.clear();
        return AppInventoryScanner().scanApps(
            host(), [this](const ScanProgress& progress) { m_appReports.push_back(progress); }, cancellation);
    }
    const std::vector<ScanProgress>& appReports() const { return m_appReports; }

    /// The one application that a scan finds at this place.
    InstalledApp appAt(const std::filesystem::path& url)
    {
        for (auto& app : scanApps()) {
            if (app.url == url)
                return app;
        }
        ADD_FAILURE() << url << " was not found";
        return InstalledApp(url, "", std::nullopt, 0, {});
    }

    /// Makes one file in each of the seven places of this identifier.
    void makeAllLeftovers(const std::string& identifier) const
    {
        for (const auto& path : leftoverPaths(identifier))
            writeFile(path.extension() == ".plist" ? path : path / "data", std::size_t{ 9000 });
    }
    std::vector<std::filesystem::path> leftoverPaths(const std::string& identifier) const
    {
        return { library("Application Support/" + identifier), library("Caches/" + identifier),
            library("Preferences/" + identifier + ".plist"),
            library("Saved Application State/" + identifier + ".savedState"), library("HTTPStorages/" + identifier),
            library("WebKit/" + identifier), library("Containers/" + identifier) };
    }

    static std::vector<std::filesystem::path> places(const std::vector<InstalledApp>& apps)
    {
        std::vector<std::filesystem::path> found;
        for (const auto& app : apps)
            found.push_back(app.url);
        return found;
    }
    static std::vector<std::string> categories(const InstalledApp& app)
    {
        std::vector<std::string> found;
        for (const auto& leftover : app.leftovers)
            found.push_back(leftover.category);
        return found;
    }

private:
    std::shared_ptr<TestCatalog> m_catalog = std::make_shared<TestCatalog>();
    std::vector<ScanProgress> m_appReports;
};

} // namespace Korvane
