// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"
#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestHost.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// A home of a test's own, and scans of it that remember what they reported.
class ScanFixture : public testing::Test {
protected:
    std::filesystem::path home() const { return m_folder / "home"; }
    std::filesystem::path temporary() const { return m_folder / "tmp"; }
    const TemporaryFolder& folder() const { return m_folder; }
    Host& host() { return m_host.host; }
    void setRunning(std::vector<std::string> identifiers) { m_host.workspace->setRunning(std::move(identifiers)); }

    std::vector<ScanItem> scan(const JunkScanner& scanner, const Cancellation& cancellation = {})
    {
        m_reports.clear();
        return scanner.scan(
            host(), [this](const ScanProgress& progress) { m_reports.push_back(progress); }, cancellation);
    }
    const std::vector<ScanProgress>& reports() const { return m_reports; }

private:
    TemporaryFolder m_folder;
    TestHost m_host = makeTestHost(m_folder);
    std::vector<ScanProgress> m_reports;
};

/// The item of this location; null when there is none.
const ScanItem* itemAt(const std::vector<ScanItem>& items, const std::filesystem::path& url);

/// The locations of the items, in their order.
std::vector<std::filesystem::path> urls(const std::vector<ScanItem>& items);

/// Sets when the content of a file, a link itself, or a folder was last changed.
void setModified(const std::filesystem::path& path, std::chrono::system_clock::time_point moment);

/// Allocated bytes of one file or link itself.
std::int64_t allocatedBytes(const std::filesystem::path& path);

/// Makes a file of this logical size that occupies next to nothing.
void writeSparseFile(const std::filesystem::path& path, std::int64_t size);

/// Makes a file whose bytes are all allocated and zero; false where the file system cannot.
bool writeAllocatedFile(const std::filesystem::path& path, std::int64_t size);

} // namespace Korvane
