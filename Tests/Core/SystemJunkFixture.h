// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/SystemJunkScanner.h"
#include "Tests/Core/ScanFixture.h"

namespace Korvane {

/// Scans of System Junk, and the places that every host has.
class SystemJunkFixture : public ScanFixture {
protected:
    std::filesystem::path caches() const { return home() / "Library/Caches"; }
    std::filesystem::path logs() const { return home() / "Library/Logs"; }
    std::filesystem::path derivedData() const { return home() / "Library/Developer/Xcode/DerivedData"; }
    std::filesystem::path simulatorCaches() const { return home() / "Library/Developer/CoreSimulator/Caches"; }

    std::vector<ScanItem> scanJunk(const Cancellation& cancellation = {})
    {
        return scan(SystemJunkScanner(), cancellation);
    }

    std::filesystem::path makeCache(const std::string& name, std::size_t bytes = 5000)
    {
        writeFile(caches() / name / "data", bytes);
        return caches() / name;
    }

    /// Whether the cache folder of this name is found, and pre-selected.
    testing::AssertionResult isPreselected(const std::string& name)
    {
        const auto items = scanJunk();
        const auto* item = itemAt(items, caches() / name);
        if (item == nullptr)
            return testing::AssertionFailure() << name << " was not found";
        return item->selectableByDefault ? testing::AssertionSuccess() : testing::AssertionFailure();
    }
};

} // namespace Korvane
