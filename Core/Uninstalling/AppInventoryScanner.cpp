// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Uninstalling/AppInventoryScanner.h"

#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/LastPathComponent.h"
#include "Core/Scanning/ProgressThrottle.h"
#include "Platform/Checked.h"
#include "Platform/DisplayText.h"
#include "Platform/FileError.h"

#include <algorithm>
#include <string_view>
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

std::vector<std::filesystem::path> visibleChildren(const std::filesystem::path& folder, const FileManager& files)
{
    try {
        return files.contentsOfDirectory(folder, HiddenFiles::Skipped);
    } catch (const FileError&) {
        // Most users have no folder of applications of their own.
        return {};
    }
}

} // namespace

/// One scan: what has been found so far, and how it is reported.
class AppInventoryScanner::Scan {
public:
    Scan(const Host& host, const ProgressHandler& progress, const Cancellation& cancellation)
        : m_host(host)
        , m_progress(progress)
        , m_cancellation(cancellation)
    {
    }

    std::vector<InstalledApp> run()
    {
        const auto home = m_host.files->homeDirectoryForCurrentUser();
        for (const auto& folder : { m_host.environment.applicationsDirectory, home / "Applications" }) {
            m_cancellation.throwIfCancelled();
            for (const auto& child : visibleChildren(folder, *m_host.files)) {
                m_cancellation.throwIfCancelled();
                addBundle(child);
            }
        }
        std::stable_sort(m_apps.begin(), m_apps.end(), [](const InstalledApp& left, const InstalledApp& right) {
            return left.totalSize() > right.totalSize();
        });
        return std::move(m_apps);
    }

private:
    void addBundle(const std::filesystem::path& url)
    {
        const auto stem = stemOfApplication(url);
        if (!stem)
            return;
        report(url);
        const auto size = FileSizeCalculator::totalSize(url, m_cancellation);
        add(InstalledApp(url, displayText(*stem), std::nullopt, size, {}));
    }

    void add(InstalledApp app)
    {
        m_found.itemsFound = checkedAdd(m_found.itemsFound, 1);
        m_found.bytesFound = checkedAdd(m_found.bytesFound, app.totalSize());
        report(app.url);
        m_apps.push_back(std::move(app));
    }

    void report(const std::filesystem::path& url)
    {
        if (!m_throttle.shouldEmit())
            return;
        m_found.currentPath = displayText(url);
        m_progress(m_found);
    }

    const Host& m_host;
    const ProgressHandler& m_progress;
    const Cancellation& m_cancellation;
    ProgressThrottle m_throttle;
    ScanProgress m_found;
    std::vector<InstalledApp> m_apps;
};

std::vector<InstalledApp> AppInventoryScanner::scanApps(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    return Scan(host, progress, cancellation).run();
}

} // namespace Korvane
