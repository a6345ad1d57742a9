// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Core/Scanning/JunkScanner.h"
#include "UI/Scan/ScanSelection.h"

#include <memory>
#include <optional>

namespace Korvane {

/// What a scan brings back, ready to be shown: its findings, and those of them that are ticked at first.
struct ScanOutcome {
    std::shared_ptr<const ScanFindings> findings;
    ScanSelection selection;

    /// Scans; nothing when the scan failed or was cancelled. Off the main thread.
    static std::optional<ScanOutcome> of(const JunkScanner& scanner, const Host& host, const ProgressHandler& progress,
        const Cancellation& cancellation) noexcept;
};

} // namespace Korvane
