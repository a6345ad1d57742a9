// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/ScanItem.h"
#include "Core/Scanning/ScanProgress.h"
#include "Core/Scanning/SharedStorage.h"
#include "Platform/Cancellation.h"
#include "Platform/Host.h"

#include <vector>

namespace Korvane {

/// What every scanner of the scan, select and clean pattern fulfils.
///
/// A scanner is a value: it carries only its parameters, holds nothing between scans and can be copied freely.
class JunkScanner {
public:
    virtual ~JunkScanner() = default;

    /// Finds what can be cleaned. Off the main thread; reports progress on the calling thread.
    /// Throws CancellationError when cancelled, and nothing else for what it cannot read.
    virtual std::vector<ScanItem> scan(
        const Host& host, const ProgressHandler& progress, const Cancellation& cancellation) const = 0;

    /// What the items that scan() has found share with each other; most scanners find only what stands for itself.
    /// Off the main thread; throws CancellationError when cancelled.
    virtual SharedStorageOfItems sharedStorage(const std::vector<ScanItem>&, const Cancellation&) const { return {}; }
};

} // namespace Korvane
