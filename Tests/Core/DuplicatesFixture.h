// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/DuplicatesScanner.h"
#include "Tests/Core/ScanFixture.h"

namespace Korvane {

/// Scans for duplicates in homes of small files.
class DuplicatesFixture : public ScanFixture {
protected:
    std::vector<ScanItem> scanHome() { return scan(DuplicatesScanner(home())); }

    /// Small files, so that a test of names needs no large ones.
    std::vector<ScanItem> scanSmall() { return scan(DuplicatesScanner(home(), 100, 1000)); }

    std::filesystem::path make(const std::filesystem::path& relative, const std::string& content,
        std::chrono::hours age = std::chrono::hours(1)) const
    {
        writeFile(home() / relative, content);
        setModified(home() / relative, m_now - age);
        return home() / relative;
    }

    const std::string small = std::string(200, 's');

private:
    std::chrono::system_clock::time_point m_now = std::chrono::system_clock::now();
};

} // namespace Korvane
