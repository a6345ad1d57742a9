// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Tests/Support/TemporaryFolder.h"
#include "Tests/Support/TestHost.h"
#include "Tests/UI/Scan/HeldScan.h"
#include "Tests/UI/Scan/PlainNavigation.h"
#include "UI/ScanViewModel.h"

#include <memory>
#include <optional>
#include <vector>

namespace Korvane {

/// The view model of System Junk on a temporary home; ends all background work before the home goes.
struct ScanModelFixture {
    ~ScanModelFixture()
    {
        model.reset();
        drain();
    }

    TemporaryFolder folder;
    TestHost services = makeTestHost(folder);
    PlainNavigation navigation;
    std::unique_ptr<ScanViewModel> model
        = std::make_unique<ScanViewModel>(CleanerModule::systemJunk, services.host, navigation);
};

/// Three findings in two categories, of which the second is not chosen by default.
inline std::vector<ScanItem> someItems()
{
    return {
        { "/nowhere/big", std::nullopt, "User Caches", 3'000'000, true },
        { "/nowhere/kept", std::nullopt, "User Caches", 1'000, false },
        { "/nowhere/log", std::nullopt, "Log Files", 2'000, true },
    };
}

} // namespace Korvane
