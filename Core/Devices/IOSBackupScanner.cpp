// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Core/Devices/IOSBackupScanner.h"

#include "Core/Scanning/FindingsReport.h"
#include "Core/TextKeyedDictionary.h"
#include "Core/VisibleChildren.h"
#include "Platform/DisplayText.h"
#include "Platform/MeasureAhead.h"
#include "Platform/PropertyList.h"
#include "Platform/ReadingBudget.h"

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <utility>

namespace Korvane {

namespace {

/// A description holds an icon of every application of the device, so that some have a few million bytes.
constexpr std::size_t largestDescription = PropertyList::largestSize;
constexpr std::size_t largeDescriptions = 16 * largestDescription;

bool isFolder(const std::filesystem::path& url)
{
    std::error_code error;
    return std::filesystem::is_directory(url, error);
}

/// Never fails: what the description does not say is taken from the folder's name, or is absent.
IOSBackup parse(const std::filesystem::path& url, std::int64_t size, ReadingBudget& budget)
{
    auto fallback = displayText(url.filename());
    const auto description = textKeyedDictionary(budget.contents(url / "Info.plist"));
    if (!description)
        return { url, std::move(fallback), std::nullopt, std::nullopt, size };
    const auto date = description->value("Last Backup Date");
    return { url, textIn(*description, "Device Name").value_or(std::move(fallback)),
        textIn(*description, "Product Version"), date ? date->date() : std::nullopt, size };
}

} // namespace

/// One scan: what has been found so far, and what may still be read.
class IOSBackupScanner::Scan {
public:
    Scan(const Host& host, const ProgressHandler& progress, const Cancellation& cancellation)
        : m_host(host)
        , m_cancellation(cancellation)
        , m_report(progress)
    {
    }

    std::vector<IOSBackup> run()
    {
        const auto urls = folders();
        MeasureAhead sizes(urls, m_cancellation);
        for (const auto& url : urls) {
            m_cancellation.throwIfCancelled();
            m_report.tell(url);
            add(parse(url, sizes.next(), m_budget));
        }
        std::stable_sort(m_backups.begin(), m_backups.end(),
            [](const IOSBackup& left, const IOSBackup& right) { return left.sizeInBytes > right.sizeInBytes; });
        return std::move(m_backups);
    }

private:
    std::vector<std::filesystem::path> folders() const
    {
        m_cancellation.throwIfCancelled();
        auto urls = visibleChildren(backupRoot(m_host.environment), *m_host.files, m_cancellation);
        urls.erase(
            std::remove_if(urls.begin(), urls.end(), [](const auto& url) { return !isFolder(url); }), urls.end());
        return urls;
    }

    void add(IOSBackup backup)
    {
        m_report.count(backup.sizeInBytes);
        m_report.tell(backup.url);
        m_backups.push_back(std::move(backup));
    }

    const Host& m_host;
    const Cancellation& m_cancellation;
    FindingsReport m_report;
    ReadingBudget m_budget{ largestDescription, largeDescriptions };
    std::vector<IOSBackup> m_backups;
};

std::filesystem::path IOSBackupScanner::backupRoot(const Environment& environment)
{
    return environment.home / "Library/Application Support/MobileSync/Backup";
}

std::vector<IOSBackup> IOSBackupScanner::scan(
    const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const
{
    return Scan(host, progress, cancellation).run();
}

} // namespace Korvane
